#pragma once

#include "Quietlark/Platform/SurfaceHost.h"

#include <QWidget>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quietlark::test {

/// A view on a screen of the mind: what was asked of it stands in its fields.
class RecordedSurface final : public HostedSurface {
public:
    using Registry = std::shared_ptr<std::vector<RecordedSurface*>>;

    RecordedSurface(std::unique_ptr<QWidget> view, const SurfaceStyle& asked, Registry registry)
        : style(asked), view_(std::move(view)), registry_(std::move(registry)),
          takesPointer_(asked.takesPointer) {
        registry_->push_back(this);
    }
    ~RecordedSurface() override { std::erase(*registry_, this); }
    RecordedSurface(const RecordedSurface&) = delete;
    RecordedSurface& operator=(const RecordedSurface&) = delete;

    QWidget& view() override { return *view_; }

    QRectF frame() const override { return frame_; }
    void setFrame(const QRectF& frame) override {
        ++moves;
        frame_ = frame;
        view_->resize(frame.size().toSize());
    }

    bool isMapped() const override { return mapped_; }
    void setMapped(bool mapped) override {
        if (std::exchange(mapped_, mapped) != mapped && mapped) {
            toTop();
        }
        view_->setVisible(mapped);
    }

    bool isShowing() const override { return mapped_ && !covered; }

    void bringToFront() override {
        setMapped(true);
        toTop();
    }

    void setOpacity(double value) override { opacity = value; }

    bool takesPointer() const override { return takesPointer_; }
    void setTakesPointer(bool takes) override {
        ++pointerChanges;
        takesPointer_ = takes;
    }

    void setOutline(const QRegion& region) override { outline = region; }

    SurfaceStyle style;
    double opacity = 1;
    QRegion outline;
    bool covered = false;   ///< set by a test
    int moves = 0;          ///< calls of `setFrame`
    int pointerChanges = 0; ///< calls of `setTakesPointer`

private:
    void toTop() {
        std::erase(*registry_, this);
        registry_->push_back(this);
    }

    std::unique_ptr<QWidget> view_;
    Registry registry_;
    QRectF frame_;
    bool mapped_ = false;
    bool takesPointer_ = true;
};

/// Screens and a pointer set by hand, and a list of what is hosted on them. Views are shown with the platform that the
/// tests run on, which needs no display.
class RecordingSurfaceHost final : public SurfaceHost {
public:
    explicit RecordingSurfaceHost(std::vector<Screen> screens = {laptop()}) : screens_(std::move(screens)) {}

    /// 1440 by 900 with a panel of 30 points at the top.
    static Screen laptop() {
        return {.name = "Laptop", .frame = {0, 0, 1440, 900}, .visibleFrame = {0, 30, 1440, 870}};
    }
    /// To the right of it, with a panel of 40 points at the bottom.
    static Screen desk() {
        return {.name = "Desk", .frame = {1440, 0, 1920, 1080}, .visibleFrame = {1440, 0, 1920, 1040}};
    }

    std::vector<Screen> screens() const override { return screens_; }
    void setScreens(std::vector<Screen> screens) {
        screens_ = std::move(screens);
        notify(screenObservers_);
    }
    Subscription observeScreens(std::function<void()> changed) override {
        return subscribe(screenObservers_, std::move(changed));
    }

    std::optional<QPointF> pointer() const override { return pointerPlace; }

    Subscription observeOutside(std::function<void()> pressedOrLeft) override {
        return subscribe(outsideObservers_, std::move(pressedOrLeft));
    }
    /// The person presses a button somewhere else.
    void pressOutside() { notify(outsideObservers_); }

    bool blends() const override { return canBlend; }

    std::optional<QImage> backdrop(const Screen&) const override { return std::nullopt; }

    std::unique_ptr<HostedSurface> host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) override {
        return std::make_unique<RecordedSurface>(std::move(view), style, surfaces_);
    }

    /// All that live, from the bottom to the top.
    const std::vector<RecordedSurface*>& surfaces() const { return *surfaces_; }

    /// Those with this identifier, from the bottom to the top.
    std::vector<RecordedSurface*> surfaces(std::string_view identifier) const {
        std::vector<RecordedSurface*> found;
        std::ranges::copy_if(*surfaces_, std::back_inserter(found), [&](const RecordedSurface* surface) {
            return surface->style.identifier == identifier;
        });
        return found;
    }

    /// The top one with this identifier; none: null.
    RecordedSurface* top(std::string_view identifier) const {
        const auto found = surfaces(identifier);
        return found.empty() ? nullptr : found.back();
    }

    std::optional<QPointF> pointerPlace = QPointF(700, 450);
    bool canBlend = true;

private:
    using Observers = std::vector<std::weak_ptr<std::function<void()>>>;

    static Subscription subscribe(Observers& observers, std::function<void()> observer) {
        auto held = std::make_shared<std::function<void()>>(std::move(observer));
        observers.push_back(held);
        return held;
    }
    static void notify(const Observers& observers) {
        for (const auto& observer : Observers(observers)) {
            if (const auto held = observer.lock()) {
                (*held)();
            }
        }
    }

    std::vector<Screen> screens_;
    Observers screenObservers_;
    Observers outsideObservers_;
    RecordedSurface::Registry surfaces_ = std::make_shared<std::vector<RecordedSurface*>>();
};

} // namespace quietlark::test
