#pragma once

#include <optional>

namespace quietlark {

/// How patiently a media server is treated: one that is missing is looked for again every few seconds, and one that
/// keeps its first answer is waited for no longer than a moment. Times are uptimes in seconds.
class ServerPatience {
public:
    static constexpr double secondsBetweenConnections = 3;
    static constexpr double longestFirstAnswer = 2;

    /// At every refresh. Whether the server is to be looked for now, where it is missing.
    bool wantsConnection(double uptime, bool isMissing) {
        refreshed_ = uptime;
        firstRefresh_ = firstRefresh_.value_or(uptime);
        if (!isMissing || (lastConnection_ && uptime - *lastConnection_ < secondsBetweenConnections)) {
            return false;
        }
        lastConnection_ = uptime;
        return true;
    }

    /// It has told what it knows, or can't be reached.
    void noteAnswer() { hasAnswered_ = true; }

    /// Whether the program goes on, with the first answer or without it.
    bool isOver() const {
        return hasAnswered_ || (firstRefresh_ && refreshed_ - *firstRefresh_ >= longestFirstAnswer);
    }

private:
    std::optional<double> firstRefresh_;
    std::optional<double> lastConnection_;
    double refreshed_ = 0;
    bool hasAnswered_ = false;
};

} // namespace quietlark
