#include "WumbleCore/Motion/SVGPath.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace wumble::SVGPath {

namespace {

constexpr std::size_t mostNumbers = 6;

double held(double value) {
    return std::clamp(value, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
}

/// The numbers of one command, as offsets from where it began when it is relative.
class Group {
public:
    using Numbers = std::array<double, mostNumbers>;

    Group(const Numbers& numbers, Point current, bool isRelative)
        : numbers_(numbers), current_(current), origin_(isRelative ? current : Point{}) {}

    Point point(std::size_t index) const { return {x(2 * index), y(2 * index + 1)}; }
    Point horizontal() const { return {x(0), current_.y}; }
    Point vertical() const { return {current_.x, y(0)}; }

private:
    double x(std::size_t index) const { return held(origin_.x + numbers_[index]); }
    double y(std::size_t index) const { return held(origin_.y + numbers_[index]); }

    const Numbers& numbers_;
    Point current_;
    Point origin_;
};

class Pen {
public:
    Point current() const { return current_; }

    void move(const Group& group) {
        start_ = group.point(0);
        append(segment::Move{start_}, start_);
        hasDrawn_ = false;
    }
    void line(const Group& group) { lineTo(group.point(0)); }
    void horizontal(const Group& group) { lineTo(group.horizontal()); }
    void vertical(const Group& group) { lineTo(group.vertical()); }

    void cubic(const Group& group) { cubicTo(group.point(0), group.point(1), group.point(2)); }
    void smoothCubic(const Group& group) {
        cubicTo(reflected(cubicControl_), group.point(0), group.point(1));
    }
    void quadratic(const Group& group) { quadraticTo(group.point(0), group.point(1)); }
    void smoothQuadratic(const Group& group) { quadraticTo(reflected(quadraticControl_), group.point(0)); }

    /// Adds nothing where nothing was drawn since the last move or close.
    void close() {
        if (hasDrawn_) {
            path_.emplace_back(segment::Close{});
        }
        hasDrawn_ = false;
        current_ = start_;
        forgetControls();
    }

    Path takePath() { return std::move(path_); }

private:
    void append(Segment segment, Point end) {
        path_.push_back(segment);
        current_ = end;
        hasDrawn_ = true;
        forgetControls();
    }

    void lineTo(Point to) { append(segment::Line{to}, to); }
    void cubicTo(Point control1, Point control2, Point to) {
        append(segment::Cubic{control1, control2, to}, to);
        cubicControl_ = control2;
    }
    void quadraticTo(Point control, Point to) {
        append(segment::Quadratic{control, to}, to);
        quadraticControl_ = control;
    }

    void forgetControls() {
        cubicControl_.reset();
        quadraticControl_.reset();
    }

    /// The control that carries a curve on without a bend, or where the pen is when none came before.
    Point reflected(const std::optional<Point>& control) const {
        return control ? Point{held(2 * current_.x - control->x), held(2 * current_.y - control->y)}
                       : current_;
    }

    Path path_;
    Point current_;
    Point start_;
    std::optional<Point> cubicControl_; ///< the last control of the curve just drawn
    std::optional<Point> quadraticControl_;
    bool hasDrawn_ = false; ///< since the last move or close
};

struct Action {
    char letter;
    std::size_t numbers;
    void (Pen::*draw)(const Group&);
    char repeats; ///< what further groups of numbers mean
};

constexpr std::array<Action, 8> actions{{
    {'M', 2, &Pen::move, 'L'},
    {'L', 2, &Pen::line, 'L'},
    {'H', 1, &Pen::horizontal, 'H'},
    {'V', 1, &Pen::vertical, 'V'},
    {'C', 6, &Pen::cubic, 'C'},
    {'S', 4, &Pen::smoothCubic, 'S'},
    {'Q', 4, &Pen::quadratic, 'Q'},
    {'T', 2, &Pen::smoothQuadratic, 'T'},
}};

/// Null for letters that take no numbers.
const Action* actionFor(char upperLetter) {
    const auto action = std::ranges::find(actions, upperLetter, &Action::letter);
    return action == actions.end() ? nullptr : &*action;
}

class Parser {
public:
    explicit Parser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    Path parse() {
        while (next_ < tokens_.size()) {
            if (const auto* command = std::get_if<Command>(&tokens_[next_])) {
                ++next_;
                begin(command->letter);
            } else if (action_ != nullptr) {
                drawGroup();
            } else {
                ++next_;
            }
        }
        return pen_.takePath();
    }

private:
    void begin(char letter) {
        isRelative_ = letter >= 'a';
        const char upper = isRelative_ ? static_cast<char>(letter - 'a' + 'A') : letter;
        action_ = actionFor(upper);
        if (upper == 'Z') {
            pen_.close();
        }
    }

    /// A group that is cut short by a command or the end draws nothing.
    void drawGroup() {
        Group::Numbers numbers{};
        for (std::size_t i = 0; i < action_->numbers; ++i, ++next_) {
            const auto* number = next_ < tokens_.size() ? std::get_if<double>(&tokens_[next_]) : nullptr;
            if (number == nullptr) {
                return;
            }
            numbers[i] = *number;
        }
        (pen_.*action_->draw)(Group(numbers, pen_.current(), isRelative_));
        action_ = actionFor(action_->repeats);
    }

    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    const Action* action_ = nullptr; ///< none before the first command and after one that takes no numbers
    bool isRelative_ = false;
    Pen pen_;
};

} // namespace

Path parse(std::string_view text) { return Parser(tokenize(text)).parse(); }

} // namespace wumble::SVGPath
