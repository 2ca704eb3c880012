#include "Quietlark/Platform/Linux/Video/ScreenCasts.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <unistd.h>

namespace quietlark {

namespace {

/// What the log calls a program: by its name in the form of an identifier where it has none.
std::string identifier(const AppRef& app) {
    if (app.bundleID) {
        return *app.bundleID;
    }
    std::string name = wumble::lowerCased(app.name);
    std::ranges::replace(name, ' ', '-');
    return name;
}

} // namespace

ScreenCasts::ScreenCasts(AppIdentity& identity) : identity_(identity), connection_([this] { publish(); }) {}

void ScreenCasts::refresh(double uptime) {
    connection_.refresh(uptime);
    if (connection_.isConnected()) {
        lines_->begin();
    }
}

bool ScreenCasts::cameraRuns() const {
    const VideoGraph* graph = connection_.graph();
    return graph != nullptr && graph->cameraRuns();
}

void ScreenCasts::publish() {
    const VideoGraph* graph = connection_.graph();
    if (graph == nullptr) {
        isWatched_.reset();
        if (!connection_.isConnected()) {
            lines_->end();
        }
        return;
    }
    const std::vector<AppHints> watchers = graph->watchers(getpid());
    std::vector<std::string> identifiers;
    for (const AppHints& hints : watchers) {
        const std::string watcher = identifier(identity_.identify(hints));
        // A watcher without a name isn't listed: an empty list lets the reader guess.
        if (!watcher.empty() && std::ranges::find(identifiers, watcher) == identifiers.end()) {
            identifiers.push_back(watcher);
        }
    }
    isWatched_ = !watchers.empty();
    lines_->setWatchers(identifiers);
}

} // namespace quietlark
