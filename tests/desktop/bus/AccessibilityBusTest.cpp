#include "tests/desktop/bus/BusDesktop.h"

#include <filesystem>

namespace quietlark::test {

namespace {

using AccessibilityBus = BusTest;

constexpr const char* launcher = "/usr/libexec/at-spi-bus-launcher";

/// The bus of screen readers, as desktops start it, and one who listens there.
class Reader {
public:
    explicit Reader(const lab::PrivateBus& session)
        : environment_(session.asSession()),
          bus_(std::make_unique<lab::LabProcess>(std::vector<std::string>{launcher}, where())) {
        EXPECT_TRUE(lab::spinUntil([&] {
            return !session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress").empty();
        }));
        const auto script = std::filesystem::path(__FILE__).parent_path() / "announcement_listener.py";
        listener_ = std::make_unique<lab::LabProcess>(
            std::vector<std::string>{"/usr/bin/python3", script.string()}, where());
        EXPECT_EQ(listener_->readLine(), "ready");
    }

    static bool isInstalled() {
        return std::filesystem::exists(launcher) &&
               lab::outputOf({"/usr/bin/python3", "-c",
                              "import gi; gi.require_version('Atspi', '2.0'); print('there')"})
                   .starts_with("there");
    }

    std::optional<std::string> nextSentence(double seconds = 0.01) { return listener_->readLine(seconds); }

private:
    lab::Environment where() {
        lab::Environment all = environment_;
        all["XDG_RUNTIME_DIR"] = folder_.path().string();
        return all;
    }

    wumble::test::TemporaryFolder folder_;
    lab::Environment environment_;
    std::unique_ptr<lab::LabProcess> bus_;
    std::unique_ptr<lab::LabProcess> listener_;
};

} // namespace

TEST_F(AccessibilityBus, speaksToAScreenReaderAndToTheOneThatComesAfterIt) {
    if (!Reader::isInstalled()) {
        GTEST_SKIP() << "at-spi2-core or its introspection isn't installed";
    }
    makeServices();
    services.announcer->announce("Nobody listens yet");
    runAWhile();
    for (const char* which : {"the first", "the one after it"}) {
        SCOPED_TRACE(which);
        Reader reader(session);
        services.announcer->announce("Break in 60 seconds");
        services.announcer->announce("Wumble will wait — “gleich”");
        std::vector<std::string> heard;
        EXPECT_TRUE(comesTrue([&] {
            if (const auto sentence = reader.nextSentence()) {
                heard.push_back(*sentence);
            }
            return heard.size() >= 2;
        }));
        const std::vector<std::string> said = {"Break in 60 seconds", "Wumble will wait — “gleich”"};
        EXPECT_EQ(heard, said);
    }
}

} // namespace quietlark::test
