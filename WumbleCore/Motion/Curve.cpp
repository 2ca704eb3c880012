#include "WumbleCore/Motion/Curve.h"

namespace wumble::Motion {

namespace {

/// Halvings of the parameter: finer than any screen can show.
constexpr int bisections = 24;

/// One coordinate of a Bézier from 0 to 1.
double bezier(double control1, double control2, double u) {
    const double v = 1 - u;
    return 3 * v * v * u * control1 + 3 * v * u * u * control2 + u * u * u;
}

} // namespace

double Curve::value(double t) const {
    if (!(t > 0)) {
        return 0;
    }
    if (t >= duration) {
        return 1;
    }
    const double x = t / duration;
    double low = 0;
    double high = 1;
    for (int step = 0; step < bisections; ++step) {
        const double middle = (low + high) / 2;
        (bezier(x1, x2, middle) < x ? low : high) = middle;
    }
    return bezier(y1, y2, (low + high) / 2);
}

} // namespace wumble::Motion
