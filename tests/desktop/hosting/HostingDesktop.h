#pragma once

#include "Quietlark/Platform/Linux/Hosting/SurfaceHosts.h"
#include "tests/desktop/hosting/Bystander.h"
#include "tests/lab/Spin.h"
#include "tests/lab/XServer.h"

#include <QColor>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quietlark::test {

/// A view in one colour that notes what it gets.
class PlainView final : public QWidget {
public:
    explicit PlainView(QColor colour) : colour_(colour) {}

    int presses = 0;
    QString typed;
    std::vector<int> keys; ///< as Qt names them
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QColor colour_;
};

/// Two screens side by side, 800 by 900 pixels each; further parts of a desktop where a test starts them.
class HostingDesktop : public testing::Test {
public:
    static const lab::XServer* server;

protected:
    void SetUp() override;
    void TearDown() override;

    void startWindowManager();
    void startCompositor();
    void stopCompositor() { compositor.reset(); }
    static void addRightScreen();
    static void removeRightScreen();

    static constexpr QRect leftScreen{0, 0, 800, 900};
    static constexpr QRect rightScreen{800, 0, 800, 900};
    static constexpr std::uint32_t blue = 0x0000ff;
    static constexpr std::uint32_t green = 0x00ff00;

    /// A red surface, mapped and shown.
    std::unique_ptr<HostedSurface> show(const QRect& frame, const SurfaceStyle& style) const;
    static PlainView& viewOf(HostedSurface& surface) { return static_cast<PlainView&>(surface.view()); }

    /// What the screen shows there.
    static QColor colourAt(const QPoint& place);
    static bool shows(const QPoint& place, const QColor& colour);

    static void clickAt(const QPoint& place);
    static void press(const std::string& keys);

    std::unique_ptr<SurfaceHost> host;
    std::unique_ptr<lab::LabProcess> manager;
    std::unique_ptr<lab::LabProcess> compositor;
};

} // namespace quietlark::test
