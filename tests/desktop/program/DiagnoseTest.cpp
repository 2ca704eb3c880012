#include "tests/desktop/program/ProgramDesktop.h"
#include "tests/lab/Spin.h"

#include <csignal>
#include <sstream>

namespace quietlark::lab {
namespace {

namespace fs = std::filesystem;

/// Things are switched on and off, and the real program reports.
class DiagnoseTest : public ProgramDesktop {
protected:
    /// What the report says behind this label.
    std::string report(const std::string& label) const {
        std::istringstream lines(home->start({"--diagnose"})->readAll());
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(label + ":")) {
                const std::size_t value = line.find_first_not_of(' ', label.size() + 1);
                return value == std::string::npos ? "" : line.substr(value);
            }
        }
        return "no such line";
    }

    bool tells(const std::string& label, const std::string& value) const {
        std::string last;
        const bool isTold = spinUntil([&] { return (last = report(label)) == value; }, 20);
        EXPECT_EQ(last, value) << label;
        return isTold;
    }
};

TEST_F(DiagnoseTest, tellsNothingOfAQuietDesktopAndTheTruthOfWhatIsSwitchedOnAndOff) {
    EXPECT_EQ(report("data folder"), home->data().string());
    tells("microphone", "idle  apps: ");
    tells("screen capture", "not detected");
    tells("capturers (log)", "none");
    tells("auto-pause now", "none");

    auto recording = start({"parecord", "--device=virtmic", (home->home() / "out.wav").string()});
    tells("microphone", "in use  apps: parecord");
    tells("meeting app", "parecord");
    tells("auto-pause now", "On a call in parecord");
    recording.reset();
    tells("microphone", "idle  apps: ");

    auto screen = start({"gst-launch-1.0", "-q", "videotestsrc", "is-live=true", "!",
                         "video/x-raw,format=BGRx,width=64,height=48,framerate=10/1", "!", "pipewiresink",
                         "mode=provide", "stream-properties=p,media.class=Video/Source,node.name=screen"});
    ASSERT_TRUE(spinUntil([&] { return !sound.nodeID("screen").empty(); }));
    tells("screen capture", "not detected");
    auto watcher = start({"gst-launch-1.0", "-q", "pipewiresrc", "path=" + sound.nodeID("screen"), "!",
                          "video/x-raw,format=BGRx", "!", "fakesink"});
    tells("screen capture", "detected (gst-launch-1.0)");
    tells("auto-pause now", "Sharing your screen via gst-launch-1.0");
    watcher.reset();
    tells("auto-pause now", "none");
}

TEST_F(DiagnoseTest, knowsAGameByItsPlaceAndWhetherItFillsTheScreen) {
    const fs::path game = home->home() / "steamapps/common/Blocks/blocks";
    fs::create_directories(game.parent_path());
    fs::copy_file("/usr/bin/xterm", game);
    auto window = start({game, "-class", "Blocks", "-e", "cat"});
    tells("game in front", "Blocks (in a window)");
    tells("frontmost app", "Blocks [blocks]");
    tells("auto-pause now", "none");
    window.reset();
    window = start({game, "-class", "Blocks", "-fullscreen", "-e", "cat"});
    tells("game in front", "Blocks (fills the screen)");
    tells("auto-pause now", "Playing Blocks");
}

TEST_F(DiagnoseTest, endsThoughTheBusAndTheServersStandStill) {
    sound.signal(SIGSTOP);
    EXPECT_EQ(report("screen capture"), "unavailable");
    EXPECT_EQ(report("capturers (log)"), "unknown");
    sound.signal(SIGCONT);
    tells("capturers (log)", "none");
}

TEST_F(DiagnoseTest, watchesForAsLongAsItIsAskedTo) {
    const std::string capture = home->start({"--watch-capture", "0.6"})->readAll();
    EXPECT_EQ(capture, "capturers: [none]  auto-pause: none\n")
        << "a line only where it differs from the last";
    const std::string microphone = home->start({"--watch-mic", "0.1"})->readAll();
    EXPECT_NE(microphone.find("  idle  mic apps: []  dictating: false  auto-pause: none\n"),
              std::string::npos)
        << microphone;
}

} // namespace
} // namespace quietlark::lab
