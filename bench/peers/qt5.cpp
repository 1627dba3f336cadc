// Qt 5's raster engine on QImage, as `qt5` without and as `qt5-avx2` with its AVX2 routines.
// Debian's AVX2 fills leave the upper halves of the registers in use, which slows what follows on
// many processors; on others they are its best setting for large fills.
#include "contender.h"
#include "outlines.h"

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygon>
#include <QVector>

#include <stdexcept>

namespace bench {
namespace {

bool usesAvx2() {
    return !qgetenv("QT_NO_CPU_FEATURE").contains("avx2");
}

/// Painters cannot draw on indexed bytes; grey ones are served best.
QImage::Format qtFormat(Format format) {
    switch (format) {
    case Format::Rgb332:
        return QImage::Format_Grayscale8;
    case Format::Rgb555:
        return QImage::Format_RGB555;
    case Format::Rgb565:
        return QImage::Format_RGB16;
    case Format::Rgb24:
        return QImage::Format_RGB888;
    case Format::Palette8:
        return QImage::Format_Indexed8;
    }
    return QImage::Format_Invalid;
}

QColor colorOf(Format format, uint32_t pixel) {
    if (format == Format::Rgb332) {
        const int grey = static_cast<int>(pixel);
        return {grey, grey, grey};
    }
    const Masks masks = masksOf(format);
    return {channelOf(pixel, masks.red), channelOf(pixel, masks.green),
            channelOf(pixel, masks.blue)};
}

QImage imageOn(uint8_t* pixels, int width, int height, Format format) {
    QImage image(pixels, width, height, width * bytesPerPixel(format), qtFormat(format));
    if (format == Format::Palette8) {
        QVector<QRgb> colors;
        for (const uint32_t color : palette()) {
            colors.push_back(0xFF000000 | color);
        }
        image.setColorTable(colors);
    }
    return image;
}

/// A painter and the image that it draws on.
struct Painting {
    Painting(uint8_t* pixels, Format format)
        : image(imageOn(pixels, kWidth, kHeight, format)), painter(&image) {
        if (!painter.isActive()) {
            throw std::runtime_error("qt: no painter");
        }
    }
    QImage image;
    QPainter painter;
};
using Picture = std::shared_ptr<Painting>;

QPainter::CompositionMode modeOf(Mode mode) {
    constexpr QPainter::CompositionMode kModes[] = {
        QPainter::CompositionMode_Source, QPainter::RasterOp_SourceAndDestination,
        QPainter::RasterOp_SourceOrDestination, QPainter::RasterOp_SourceXorDestination};
    return kModes[static_cast<int>(mode)];
}

Pass fill(const Workload& workload, const Shapes& shapes, const Picture& picture) {
    const QColor color = colorOf(workload.format, foreOf(workload.format));
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        picture->painter.fillRect(place.x, place.y, w, h, color);
    });
}

Pass pattern(const Workload& workload, const Shapes& shapes, const Picture& picture) {
    auto tile = std::make_shared<std::vector<uint8_t>>(patternTile(workload.format));
    const QBrush brush(imageOn(tile->data(), 8, 8, workload.format));
    const auto draw = [=, w = workload.width, h = workload.height](const Place& place) {
        picture->painter.fillRect(place.x, place.y, w, h, brush);
    };
    return [tile, pass = atPlaces(shapes, draw)] { pass(); };
}

Pass transfer(const Workload& workload, const Shapes& shapes, const Picture& picture,
              const QImage& source) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        picture->painter.drawImage(QPoint(place.x, place.y), source,
                                   QRect(place.sourceX, place.sourceY, w, h));
    });
}

Pass lines(const Workload& workload, const Shapes& shapes, const Picture& picture) {
    QPen pen(colorOf(workload.format, foreOf(workload.format)), 0);
    if (workload.operation == Operation::WideLine) {
        pen.setWidth(kWidePen);
        pen.setCapStyle(Qt::FlatCap);
    }
    if (workload.operation == Operation::Dash) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({kDash, kDash});
    }
    picture->painter.setPen(pen);
    return alongSegments(shapes, [=](const Segment& line) {
        picture->painter.drawLine(line.x1, line.y1, line.x2, line.y2);
    });
}

Pass polygons(const Workload& workload, const Shapes& shapes, const Picture& picture) {
    QPolygon polygon;
    for (const auto& [x, y] : polygonOf(workload.operation)) {
        polygon << QPoint(x, y);
    }
    std::vector<QPolygon> moved;
    for (const Place& place : shapes.places) {
        moved.push_back(polygon.translated(place.x, place.y));
    }
    return [=] {
        for (const QPolygon& at : moved) {
            picture->painter.drawPolygon(at, Qt::OddEvenFill);
        }
    };
}

Pass beziers(const Shapes& shapes, const Picture& picture) {
    return atPlaces(shapes, [=](const Place& place) {
        const auto at = [&](size_t i) {
            return QPointF(place.x + kCurve[i].x, place.y + kCurve[i].y);
        };
        QPainterPath path(at(0));
        path.cubicTo(at(1), at(2), at(3));
        picture->painter.drawPath(path);
    });
}

/// Shapes in a rectangle, by draw(painter, rect).
template <typename Draw>
Pass inscribed(const Shapes& shapes, const Picture& picture, QSize size, Draw draw) {
    return atPlaces(shapes, [=](const Place& place) {
        draw(picture->painter, QRect(QPoint(place.x, place.y), size));
    });
}

/// Filled shapes have no pen and outlines no brush. An outline's rectangle is that of its middle.
Pass shape(const Workload& workload, const Shapes& shapes, const Picture& picture) {
    constexpr int kSixteenths = 16;
    constexpr int kStart = kArcStart * kSixteenths;
    constexpr int kSpan = (kArcEnd - kArcStart) * kSixteenths;
    constexpr int kRadius = kCornerRadius;
    const QColor color = colorOf(workload.format, foreOf(workload.format));
    const bool fills = !runsOf(workload).empty();
    picture->painter.setPen(fills ? QPen(Qt::NoPen) : QPen(color, 0));
    picture->painter.setBrush(fills ? QBrush(color) : QBrush(Qt::NoBrush));
    const QSize size = QSize(workload.width, workload.height) - (fills ? QSize(0, 0) : QSize(1, 1));
    switch (workload.operation) {
    case Operation::Oval:
    case Operation::OvalLine:
        return inscribed(shapes, picture, size,
                         [](QPainter& painter, QRect rect) { painter.drawEllipse(rect); });
    case Operation::RoundRect:
    case Operation::RoundRectLine:
        return inscribed(shapes, picture, size, [](QPainter& painter, QRect rect) {
            painter.drawRoundedRect(rect, kRadius, kRadius);
        });
    case Operation::Arc:
        return inscribed(shapes, picture, size, [](QPainter& painter, QRect rect) {
            painter.drawArc(rect, kStart, kSpan);
        });
    case Operation::Pie:
        return inscribed(shapes, picture, size, [](QPainter& painter, QRect rect) {
            painter.drawPie(rect, kStart, kSpan);
        });
    case Operation::Bezier:
        return beziers(shapes, picture);
    default:
        return polygons(workload, shapes, picture);
    }
}

class Qt5 final : public Contender {
  public:
    std::string_view name() const override { return usesAvx2() ? "qt5-avx2" : "qt5"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        const bool converts = workload.operation == Operation::Convert;
        if (converts && (workload.mode != Mode::Copy || workload.source == Format::Rgb332)) {
            return {};
        }
        auto picture = std::make_shared<Painting>(canvas.pixels(), workload.format);
        picture->painter.setCompositionMode(modeOf(workload.mode));
        switch (workload.operation) {
        case Operation::Fill:
        case Operation::Span:
        case Operation::Column:
            return fill(workload, shapes, picture);
        case Operation::Pattern:
            return pattern(workload, shapes, picture);
        case Operation::Line:
        case Operation::Dash:
        case Operation::WideLine:
            return lines(workload, shapes, picture);
        case Operation::Transfer:
        case Operation::Convert:
            return transfer(workload, shapes, picture,
                            imageOn(canvas.source(), kWidth, kHeight, workload.source));
        default:
            return isShape(workload.operation) ? shape(workload, shapes, picture) : Pass();
        }
    }
};

} // namespace

std::unique_ptr<Contender> makeQt5() {
    return std::make_unique<Qt5>();
}

} // namespace bench
