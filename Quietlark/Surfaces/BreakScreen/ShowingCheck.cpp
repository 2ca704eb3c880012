#include "Quietlark/Surfaces/BreakScreen/ShowingCheck.h"

namespace quietlark {

namespace {

std::string frameText(const QRectF& frame) {
    const auto whole = [](double value) { return std::to_string(static_cast<long>(value)); };
    return whole(frame.x()) + "," + whole(frame.y()) + " " + whole(frame.width()) + "x" +
           whole(frame.height());
}

} // namespace

std::string showingHeadline(std::size_t shown, std::size_t screens, const std::string& pointerScreen) {
    return "break on " + std::to_string(shown) + " of " + std::to_string(screens) + " screens, pointer on " +
           (pointerScreen.empty() ? "?" : pointerScreen);
}

std::string showingLine(const std::string& screen, const HostedSurface& surface) {
    const std::string name = screen.empty() ? "no screen" : screen;
    // A surface is always made solid, and is on every workspace.
    const std::string hidden = std::string("NOT showing (visible ") +
                               (surface.isMapped() ? "true" : "false") +
                               ", active space true) - brought back";
    return "  " + name + " " + frameText(surface.frame()) + " alpha 1.0 " +
           (surface.isShowing() ? "showing" : hidden);
}

} // namespace quietlark
