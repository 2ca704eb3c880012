#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Storage/Storage.h"

#include <cstdlib>
#include <iostream>

/// Appends and saves without end, as fast as it can, and tells each record on standard output once it is
/// written. It waits to be killed.
int main(int argumentCount, char** arguments) {
    using namespace wumble;
    if (argumentCount != 3) {
        return 1;
    }
    const Storage storage(arguments[1]);
    const Date now{1773043200};
    WumbleSettings settings;
    settings.longBreaksEnabled = false;
    BreakEngine engine(settings, now, Calendar());
    for (int round = std::atoi(arguments[2]);; ++round) {
        const BreakRecord record{
            .id = UUID::random(), .start = now + round, .end = now + round, .snoozes = round};
        storage.append(record);
        std::cout << record.id.text() << std::endl;
        settings.workInterval = round;
        settings.customShortTitles.assign(static_cast<std::size_t>(round % 50), "Look out of the window");
        storage.save(settings);
        engine.update(settings);
        storage.save(engine.snapshot(now + round));
    }
}
