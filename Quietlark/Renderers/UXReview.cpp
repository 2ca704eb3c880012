#include "Quietlark/Renderers/PetCells.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/PictureCell.h"
#include "Quietlark/Renderers/PreviewProgram.h"

#include <cstdio>
#include <string>
#include <vector>

namespace quietlark {

namespace {

constexpr int columns = 3;
constexpr QSizeF cellSize{640, 400};
constexpr double tillFirstBreak = 1200; ///< seconds of work

void allOfIt(wumble::WumbleSettings& settings) {
    settings.headsUp = wumble::HeadsUpMode::all;
    settings.workInterval = tillFirstBreak;
}

/// One morning with the program, and a picture of each situation in it.
class Walk {
public:
    Walk(const Appearance& look, const std::filesystem::path& folder)
        : folder_(folder), program_(look, allOfIt, 5) {
        program_.stage.start();
    }

    void nudges();
    void warnings();
    void breakScreen();
    void comingBack();
    void waiting();

    bool saveSheet();

private:
    PreviewStage& stage() { return program_.stage; }
    void pass(double seconds) { stage().advance(seconds); }
    void passTo(double secondsToTheBreak) {
        pass(stage().model.engine().secondsUntilBreak() - secondsToTheBreak);
    }
    void picture(const std::string& situation);

    std::filesystem::path folder_;
    PreviewProgram program_;
    std::vector<Cell> cells_;
    bool saved_ = true;
};

void Walk::picture(const std::string& situation) {
    const QImage whole = stage().picture(1);
    std::array<char, 8> number{};
    std::snprintf(number.data(), number.size(), "%02zu ", cells_.size() + 1);
    saved_ = save(whole, folder_, number.data() + situation + ".png") && saved_;
    cells_.push_back(pictureCell(situation, whole));
}

void Walk::nudges() {
    pass(tillFirstBreak / 2 + 2.3);
    picture("Half way to the break, a nudge to blink");
    pass(10);
    stage().model.previewToast(wumble::Toast::posture(1));
    pass(1.6);
    picture("Another time, one to sit up");
    pass(10);
    stage().model.previewToast(wumble::Toast::breath(1));
    pass(5.4);
    picture("And one to breathe");
    pass(40);
}

void Walk::warnings() {
    passTo(56);
    picture("A minute before the break, the heads-up");
    stage().model.snooze(60, Asked::headsUp);
    pass(1);
    picture("Snoozed on the card, which answers");
    pass(10);
    passTo(3.4);
    picture("The last seconds, beside the pointer");
    program_.type(true);
    for (int moment = 0; moment < 10; ++moment) {
        pass(0.5);
    }
    picture("Typing holds the count where it stands");
    program_.type(false);
}

void Walk::breakScreen() {
    while (!stage().model.state().breakScreen.value() && stage().loop.uptime() < 2 * tillFirstBreak) {
        stage().loop.advance(0.25);
    }
    pass(0.25);
    picture("The break screen comes");
    pass(9);
    picture("The rest");
    stage().model.setBreakHint("Press Esc once more to skip");
    pass(1);
    picture("Escape was pressed once");
    stage().model.setBreakHint(std::nullopt);
    pass(33);
    picture("The last seconds of the rest");
    pass(2.5);
    picture("The pet gets something new");
    pass(2);
    picture("And shows it");
    pass(10);
}

void Walk::comingBack() {
    program_.goAway(400);
    picture("Back from a walk that counts as a break");
    pass(20);
    stage().model.greetToday();
    stage().model.pause(3600, Asked::menu);
    pass(1);
    picture("Paused from the menu");
    pass(20);
    stage().model.previewToast(wumble::Toast::recap(wumble::Recap::Period::week, stage().loop.now(), 5, 31));
    pass(1);
    picture("A week is over");
}

void Walk::waiting() {
    stage().model.resume();
    stage().model.update([](auto& settings) { settings.countdownDuration = 0; });
    pass(20);
    passTo(2);
    program_.type(true);
    pass(4);
    picture("Without a count, the break waits for the typing");
    program_.type(false);
}

bool Walk::saveSheet() {
    auto layout = paper(stage().appearance.value(), columns, cellSize.width());
    layout.height = cellSize.height();
    return save(sheet(cells_, layout), folder_, "ux-review.png") && saved_;
}

} // namespace

bool renderUXReview(const std::filesystem::path& folder, Appearance appearance) {
    Walk walk(appearance, folder);
    walk.nudges();
    walk.warnings();
    walk.breakScreen();
    walk.comingBack();
    walk.waiting();
    return walk.saveSheet();
}

} // namespace quietlark
