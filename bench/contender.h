// What takes part in the measurement: the library, its peers, and the plain memory calls that set
// the limit.
#pragma once

#include "canvas.h"
#include "shapes.h"
#include "workload.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace bench {

/// Draws every shape of a workload once, in order. Owns what it needs beside the canvas.
using Pass = std::function<void()>;

/// Which bytes a contender has to leave for a workload.
enum class Rule {
    Same,     ///< those of the library, to the bit
    Channels, ///< those of the library in the bits that the source has; it widens in its own way
    Line,     ///< about as many pixels; it steps or dashes lines in its own way
    Shape,    ///< likewise; it rounds outlines in its own way
    Amount,   ///< as many bytes of any value: it only moves memory
};

class Contender {
  public:
    virtual ~Contender() = default;

    virtual std::string_view name() const = 0;

    /// Null when the contender lacks the operation. Setting up is not measured, the pass is: one
    /// call of the contender's public interface a shape, with its clipping and its dispatch.
    virtual Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) = 0;

    virtual Rule rule(const Workload& workload) const = 0;
};

/// The rule of a peer that fills and copies exactly.
inline Rule peerRule(const Workload& workload) {
    if (isLine(workload.operation)) {
        return Rule::Line;
    }
    if (isShape(workload.operation) || workload.operation == Operation::ImageZoom) {
        return Rule::Shape;
    }
    return workload.operation == Operation::Convert ? Rule::Channels : Rule::Same;
}

/// A pass over rectangles.
template <typename Draw>
Pass atPlaces(const Shapes& shapes, Draw draw) {
    return [places = shapes.places, draw]() mutable {
        for (const Place& place : places) {
            draw(place);
        }
    };
}

/// A pass over lines.
template <typename Draw>
Pass alongSegments(const Shapes& shapes, Draw draw) {
    return [segments = shapes.segments, draw]() mutable {
        for (const Segment& segment : segments) {
            draw(segment);
        }
    };
}

std::unique_ptr<Contender> makeQuarlo();
std::unique_ptr<Contender> makeLimit();
std::unique_ptr<Contender> makeSdl2();
std::unique_ptr<Contender> makePixman();
std::unique_ptr<Contender> makeCairo();
std::unique_ptr<Contender> makeAgg();
std::unique_ptr<Contender> makeAllegro4();
std::unique_ptr<Contender> makeQt5();

/// Those that this build has; the library first, then the limit.
std::vector<std::unique_ptr<Contender>> makeContenders();

} // namespace bench
