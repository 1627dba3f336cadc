#include "nc/sim/path.h"

#include "nc/sim/speed.h"

#include <algorithm>
#include <cmath>

namespace gpi::nc {
namespace {

/// The speed that is wished for on a segment.
double wishedSpeed(const Segment& segment, const Pace& pace) {
    return std::min(segment.speed * (segment.rapid ? pace.rapid : pace.feed), segment.mostSpeed);
}

bool stopsAfter(const Segment& segment, const Pace& pace) {
    return segment.exactStop || (pace.stopAtBlockEnd && segment.endsBlock);
}

} // namespace

void Path::add(const Segment& segment) {
    const double corner = segments_.empty() ? 0.0 : cornerSpeed(segments_.back().segment, segment);
    segments_.push_back({segment, corner});
    look_.reset();
}

void Path::clear() {
    segments_.clear();
    look_.reset();
    way_ = 0.0;
    speed_ = 0.0;
}

Point3 Path::velocity() const {
    Point3 velocity{};
    if (speed_ > 0.0) {
        velocity = current().direction(way_);
        for (double& part : velocity) {
            part *= speed_;
        }
    }
    return velocity;
}

/// How fast the first segment may be left.
double Path::leavingSpeed(const Pace& pace) {
    if (!look_ || look_->pace != pace) {
        look_ = {pace, lookAhead(pace)};
    }
    return look_->leaving;
}

/// Walks back from the end of what is looked at: how fast may each segment be entered?
double Path::lookAhead(const Pace& pace) const {
    double leaving = 0.0;
    for (size_t i = std::min(segments_.size(), kLookAhead); i-- > 1;) {
        const Segment& before = segments_[i - 1].segment;
        const Segment& segment = segments_[i].segment;
        if (stopsAfter(before, pace)) {
            leaving = 0.0;
            continue;
        }
        const double braking =
            std::sqrt(leaving * leaving + 2.0 * kAcceleration * segment.length());
        leaving = std::min(
            {braking, segments_[i].corner, wishedSpeed(before, pace), wishedSpeed(segment, pace)});
    }
    return leaving;
}

bool Path::advance(const Pace& pace) {
    if (segments_.empty()) {
        return false;
    }
    const double leaving = leavingSpeed(pace);
    const double most = pace.hold ? 0.0 : wishedSpeed(current(), pace);
    const double left = current().length() - way_;
    const double next = nextSpeed(speed_, left, leaving, most, kAcceleration, kTick);
    way_ += (speed_ + next) / 2.0 * kTick;
    speed_ = next;

    const bool last = leaving == 0.0;
    if (last && most > 0.0 && arrives(speed_, current().length() - way_, kAcceleration, kTick)) {
        way_ = current().length();
        speed_ = 0.0;
    }
    bool blockEnded = false;
    while (!segments_.empty() && way_ >= current().length()) {
        way_ -= current().length();
        position_ = current().end();
        blockEnded = current().endsBlock && speed_ == 0.0;
        segments_.pop_front();
        look_.reset();
    }
    if (segments_.empty()) {
        way_ = 0.0;
        speed_ = 0.0;
    } else {
        position_ = current().at(way_);
    }
    return blockEnded;
}

} // namespace gpi::nc
