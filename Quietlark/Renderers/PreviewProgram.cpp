#include "Quietlark/Renderers/PreviewProgram.h"

namespace quietlark {

namespace {

constexpr double justNow = 0.2; ///< seconds since a key, while somebody types

} // namespace

PreviewProgram::PreviewProgram(const Appearance& look, const PreviewStage::Choose& choose, int revealed)
    : stage(look, choose, revealed), nudges_(stage.context()),
      toasts_(stage.context(),
              [this](const wumble::Toast& toast, const Screen& screen, Card* old, const NoteCalls& calls) {
                  return nudges_.make(toast, screen, old, calls);
              }),
      headsUp_(stage.context()), countdown_(stage.context()), overlay_(stage.context()) {
    stage.model.install(
        {.headsUp = &headsUp_, .overlay = &overlay_, .toasts = &toasts_, .countdown = &countdown_});
}

void PreviewProgram::goAway(double seconds) {
    for (double away = 1; away <= seconds; ++away) {
        stage.desktop.idleSeconds = away;
        stage.loop.advance(1);
    }
    stage.desktop.idleSeconds = 0;
    stage.advance(1);
}

void PreviewProgram::type(bool types) {
    stage.desktop.secondsSinceKeyDown = types ? std::optional(justNow) : std::nullopt;
}

} // namespace quietlark
