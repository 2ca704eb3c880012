#include "WumbleCore/Activity/VideoDetection.h"

#include <gtest/gtest.h>

namespace wumble::VideoDetection {
namespace {

TEST(VideoDetection, looksForTheWordsOfPlaybackAnywhereInTheName) {
    for (const char* name :
         {"Playing video", "Apple TV", "MEDIA session", "VLC Player", "Playback", "nightvigil"}) {
        EXPECT_TRUE(isPlayback(name)) << name;
    }
    EXPECT_FALSE(isPlayback("Presenting"));
    EXPECT_FALSE(isPlayback(""));
    EXPECT_FALSE(isPlayback(std::nullopt));
}

} // namespace
} // namespace wumble::VideoDetection
