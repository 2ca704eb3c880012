#include "tools/quietlark-soak/Levels.h"

#include "tools/quietlark-soak/XResources.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <malloc.h>
#include <unistd.h>

namespace quietlark::soak {

namespace {

/// The history grows by a line a break, and glyphs that were drawn once are kept for the next time.
constexpr long heapAllowance = 512;         // KiB
constexpr long privateAllowance = 2 * 1024; // KiB

long entriesOf(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

/// In KiB; the kernel doesn't always find the time to tell.
long privateMemory() {
    long kibibytes = 0;
    if (std::FILE* rollup = std::fopen("/proc/self/smaps_rollup", "r")) {
        for (char line[256]; std::fgets(line, sizeof line, rollup) != nullptr;) {
            std::sscanf(line, "Private_Dirty: %ld", &kibibytes);
        }
        std::fclose(rollup);
    }
    return kibibytes;
}

bool isSanitized() {
#ifdef __SANITIZE_ADDRESS__
    return true;
#else
    return false;
#endif
}

/// A sanitizer keeps what was given back, to see who still uses it.
void countMemory(std::vector<Level>& levels) {
    if (!isSanitized()) {
        const auto heap = mallinfo2();
        const auto inUse = static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
        levels.push_back({"heap KiB", inUse, heapAllowance});
        levels.push_back({"private KiB", privateMemory(), privateAllowance});
    }
}

long ownBusConnections() {
    const QString name = QStringLiteral("soak");
    long own = 0;
    {
        const auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (auto* daemon = bus.interface(); bus.isConnected() && daemon != nullptr) {
            for (const QString& client : daemon->registeredServiceNames().value()) {
                const bool counts = client.startsWith(u':') && client != bus.baseService();
                own +=
                    counts && daemon->servicePid(client).value() == static_cast<unsigned>(getpid()) ? 1 : 0;
            }
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return own;
}

} // namespace

std::vector<Level> countLevels() {
    std::vector<Level> levels;
    countMemory(levels);
    levels.push_back({"files", entriesOf("/proc/self/fd")});
    // Those that help with drawing end half a minute after they last did.
    levels.push_back({"threads", entriesOf("/proc/self/task"), QThread::idealThreadCount()});
    levels.push_back({"bus", ownBusConnections()});
    auto held = ownXResources();
    for (const char* kind : {"connection", "WINDOW", "PIXMAP", "GC", "CURSOR", "PICTURE"}) {
        levels.push_back({std::string("X ") + kind, held[kind]});
        held.erase(kind);
    }
    long rest = 0;
    for (const auto& [kind, count] : held) {
        rest += count;
    }
    levels.push_back({"X rest", rest});
    return levels;
}

std::vector<std::string> grown(const std::vector<std::vector<Level>>& rows) {
    std::vector<std::string> names;
    if (rows.empty()) {
        return names;
    }
    const auto half = rows.begin() + static_cast<std::ptrdiff_t>((rows.size() + 1) / 2);
    for (std::size_t column = 0; column < rows.back().size(); ++column) {
        const Level& last = rows.back()[column];
        const auto highest = std::max_element(rows.begin(), half, [&](const auto& a, const auto& b) {
            return a[column].held < b[column].held;
        });
        if (last.held > (*highest)[column].held + last.allowance) {
            names.push_back(last.what);
        }
    }
    return names;
}

} // namespace quietlark::soak
