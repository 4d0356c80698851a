#include <Tamble/Model/InkPen.h>

#include <algorithm>
#include <cmath>

namespace tamble {
namespace {

constexpr double thinnest = 0.005;
constexpr double widest = 0.0125;
/// Widths of the area in a second, by which the pen is at its thinnest.
constexpr double fast = 3;
/// Points that are nearer to each other say nothing.
constexpr double nearest = 0.002;
/// How much of the way to the hand the pen goes, and of the change of its width.
constexpr double following = 0.65;
constexpr double widening = 0.3;
constexpr int steps = 6;

InkPoint between(const InkPoint& a, const InkPoint& b, double share) {
    return {std::lerp(a.x, b.x, share), std::lerp(a.y, b.y, share), std::lerp(a.width, b.width, share)};
}

}  // namespace

void InkPen::begin(double x, double y, double time) {
    stroke_ = {{.x = x, .y = y, .width = (thinnest + widest) / 2}};
    lastX_ = x;
    lastY_ = y;
    lastTime_ = time;
}

void InkPen::add(double x, double y, double time) {
    if (stroke_.empty()) return begin(x, y, time);
    const double way = std::hypot(x - lastX_, y - lastY_);
    if (way < nearest) return;
    constexpr double shortest = 0.001;  // events may share a time
    const double speed = way / std::max(shortest, time - lastTime_);
    const InkPoint& before = stroke_.back();
    const double width = widest - (widest - thinnest) * std::min(1.0, speed / fast);
    const InkPoint hand{x, y, std::lerp(before.width, width, widening)};
    InkPoint next = between(before, hand, following);
    next.width = hand.width;
    stroke_.push_back(next);
    lastX_ = x;
    lastY_ = y;
    lastTime_ = time;
}

void InkPen::end(double x, double y, double time) {
    add(x, y, time);
    // The pen comes to where the hand was lifted; a touch is a dot.
    if (stroke_.size() == 1) {
        stroke_.front().width = widest;
    } else {
        stroke_.push_back({x, y, std::max(thinnest, stroke_.back().width * (1 - widening))});
    }
}

InkStroke smoothed(const InkStroke& stroke) {
    if (stroke.size() < 3) return stroke;
    InkStroke line{stroke.front()};
    // Curves from middle to middle, bent towards the points in between.
    InkPoint from = stroke.front();
    for (std::size_t i = 1; i + 1 < stroke.size(); ++i) {
        const InkPoint& bend = stroke[i];
        const InkPoint to = i + 2 < stroke.size() ? between(bend, stroke[i + 1], 0.5) : stroke[i + 1];
        for (int step = 1; step <= steps; ++step) {
            const double share = static_cast<double>(step) / steps;
            line.push_back(between(between(from, bend, share), between(bend, to, share), share));
        }
        from = to;
    }
    return line;
}

std::optional<InkBounds> boundsOf(std::span<const InkStroke> strokes) {
    std::optional<InkBounds> bounds;
    for (const InkStroke& stroke : strokes) {
        for (const InkPoint& point : stroke) {
            const double half = point.width / 2;
            if (!bounds) bounds = InkBounds{point.x, point.y, point.x, point.y};
            bounds->left = std::min(bounds->left, point.x - half);
            bounds->top = std::min(bounds->top, point.y - half);
            bounds->right = std::max(bounds->right, point.x + half);
            bounds->bottom = std::max(bounds->bottom, point.y + half);
        }
    }
    return bounds;
}

}  // namespace tamble
