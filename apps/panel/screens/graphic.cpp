// The tool path: what the program will do, what is done, and the tool on its way.
#include "graphic/layer.h"
#include "graphic/tool_mark.h"
#include "model/path_tracer.h"
#include "parts/readout.h"
#include "screens/screens.h"
#include "text/format.h"

#include <gpi/keys.h>

#include <optional>

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::CycleStart, u"CycleStart", PANEL_ICONS_CYCLE_START},
    {Action::FeedHold, u"FeedHold", PANEL_ICONS_FEED_HOLD},
    {Action::ViewPlan, u"ViewPlan", PANEL_ICONS_PLAN},
    {Action::ViewElevation, u"ViewElevation", PANEL_ICONS_ELEVATION},
    {Action::ViewIsometric, u"ViewIsometric", PANEL_ICONS_ISOMETRIC},
    {Action::ZoomIn, u"ZoomIn", PANEL_ICONS_ZOOM_IN},
    {Action::ZoomOut, u"ZoomOut", PANEL_ICONS_ZOOM_OUT},
    {Action::ZoomFit, u"ZoomFit", PANEL_ICONS_ZOOM_FIT},
    {Action::ClearGraphic, u"ClearGraphic", PANEL_ICONS_CLEAR},
};

constexpr double kZoom = 1.25;
constexpr int kPan = 40; // pixels a key

/// What a program without a path is shown in.
constexpr Box3 kEmptyWork{{-50, -50, -25}, {50, 50, 25}};

class GraphicScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Graphic"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;
    bool isOn(Action action) const override;
    bool key(int32_t key) override;
    void pointer(PointerAction action, GPoint at) override;

  private:
    void layOut();
    void trace();
    void look(Projection projection);
    void drawLayer();
    void grow();
    void addDone(const Point3& from, const Point3& to, MoveKind kind);
    void moveTool();
    void showPosition();
    void pan(int dx, int dy);
    ToolMark toolMark() const;

    GRect area_{};
    std::unique_ptr<Layer> layer_;
    std::optional<View> view_;
    ToolPath path_;
    int32_t traced_ = 0; ///< the program that it is of, as Context counts them
    Box3 work_ = kEmptyWork;
    Progress progress_;
    size_t drawn_ = 0; ///< moves that are drawn as done
    Point3 tip_{};     ///< how far the next one is
    GPoint tool_{};    ///< where it is shown, pixels of the view
    std::optional<GPoint> drag_;
    std::array<Readout, kAxes> position_;
    Readout grid_;
};

void GraphicScreen::open() {
    layOut();
    if (!view_) {
        view_.emplace(Projection::Isometric, layer_->size());
        view_->fit(work_);
    }
    if (traced_ != context_.programsRead) {
        trace();
    }
    progress_.follow(path_, context_.now);
    drawLayer();
    showPosition();
}

/// The readouts stand on the picture, at its upper left.
void GraphicScreen::layOut() {
    const Measures& m = measures();
    area_ = context_.work;
    if (layer_ == nullptr) {
        layer_ = std::make_unique<Layer>(painter(), GSize{widthOf(area_), heightOf(area_)});
    }
    constexpr Ink kInks[] = {Ink::XAxis, Ink::YAxis, Ink::ZAxis};
    const int height = m.height(Face::Number) + 2;
    for (size_t axis = 0; axis < kAxes; ++axis) {
        position_[axis].rect =
            box(area_.left + m.margin, area_.top + m.margin + static_cast<int>(axis) * height,
                12 * m.width(Face::Number), height);
        position_[axis].look = {Face::Number, kInks[axis], Align::Right};
    }
    GRect foot = inside(area_, m.margin);
    grid_.rect = takeBottom(foot, m.height(Face::Label));
    grid_.look = {Face::Label, Ink::GridText, Align::Right};
}

void GraphicScreen::trace() {
    traced_ = context_.programsRead;
    toolpath::Remarks remarks;
    path_ = toolpath::tracePath(context_.program.bytes(), remarks);
    work_ = path_.moves.empty() ? kEmptyWork : toolpath::machinedBox(path_);
    progress_.reset();
    look(view_->projection());
}

void GraphicScreen::look(Projection projection) {
    view_.emplace(projection, layer_->size());
    view_->fit(work_);
    drawLayer();
}

void GraphicScreen::drawLayer() {
    layer_->draw(*view_, path_, work_, progress_.done());
    drawn_ = progress_.done();
    tip_ = startOf(path_, drawn_);
    tool_ = view_->pixel(context_.now.work);
    grid_.text = joined({text(u"GridStep"), u" ", shortest(gridStep(view_->scale())), u" mm"});
    context_.damage.add(area_);
}

void GraphicScreen::update() {
    if (traced_ != context_.programsRead) {
        trace();
    }
    if (progress_.follow(path_, context_.now)) {
        grow();
    } else {
        drawLayer();
    }
    moveTool();
    showPosition();
}

/// Adds to the layer what has been done since.
void GraphicScreen::grow() {
    for (; drawn_ < progress_.done(); ++drawn_) {
        const Move& move = path_.moves[drawn_];
        addDone(tip_, move.end, move.kind);
        tip_ = move.end;
    }
    const Point3& tool = context_.now.work;
    const bool runs = context_.now.state == G_NC_STATE_RUNNING;
    if (runs && drawn_ < path_.moves.size() && path_.moves[drawn_].line == context_.now.line &&
        tool != tip_) {
        addDone(tip_, tool, path_.moves[drawn_].kind);
        tip_ = tool;
    }
}

void GraphicScreen::addDone(const Point3& from, const Point3& to, MoveKind kind) {
    GRect changed = layer_->drawDone(*view_, from, to, kind);
    GROffsetRect(&changed, area_.left, area_.top);
    if (GRInceptRect(&changed, &area_, &changed) != 0) {
        context_.damage.add(changed);
    }
}

void GraphicScreen::moveTool() {
    const GPoint now = view_->pixel(context_.now.work);
    if (now.x != tool_.x || now.y != tool_.y) {
        context_.damage.add(toolMark().area());
        tool_ = now;
        context_.damage.add(toolMark().area());
    }
}

void GraphicScreen::showPosition() {
    const Snapshot& now = context_.now;
    for (size_t axis = 0; axis < kAxes; ++axis) {
        const std::u16string value =
            now.online ? lengthText(now.work[axis], now.inches) : u"----.---";
        constexpr size_t kColumns = 11; // values end below each other
        std::u16string line(1, kAxisNames[axis]);
        line.append(kColumns - std::min(kColumns, value.size()), u' ');
        position_[axis].show(line + value, context_.damage);
    }
}

bool GraphicScreen::act(Action action) {
    switch (action) {
    case Action::ViewPlan:
        look(Projection::Plan);
        return true;
    case Action::ViewElevation:
        look(Projection::Elevation);
        return true;
    case Action::ViewIsometric:
        look(Projection::Isometric);
        return true;
    case Action::ZoomFit:
        look(view_->projection());
        return true;
    case Action::ZoomIn:
        view_->zoom(kZoom);
        drawLayer();
        return true;
    case Action::ZoomOut:
        view_->zoom(1.0 / kZoom);
        drawLayer();
        return true;
    case Action::ClearGraphic:
        progress_.reset();
        drawLayer();
        return true;
    default:
        return false;
    }
}

bool GraphicScreen::isOn(Action action) const {
    switch (action) {
    case Action::ViewPlan:
        return view_->projection() == Projection::Plan;
    case Action::ViewElevation:
        return view_->projection() == Projection::Elevation;
    case Action::ViewIsometric:
        return view_->projection() == Projection::Isometric;
    default:
        return false;
    }
}

bool GraphicScreen::key(int32_t key) {
    switch (key) {
    case GPI_KEY_LEFT:
        pan(kPan, 0);
        return true;
    case GPI_KEY_RIGHT:
        pan(-kPan, 0);
        return true;
    case GPI_KEY_UP:
        pan(0, kPan);
        return true;
    case GPI_KEY_DOWN:
        pan(0, -kPan);
        return true;
    case GPI_KEY_PAGE_UP:
        return act(Action::ZoomIn);
    case GPI_KEY_PAGE_DOWN:
        return act(Action::ZoomOut);
    default:
        return false;
    }
}

void GraphicScreen::pointer(PointerAction action, GPoint at) {
    if (action == PointerAction::Release) {
        drag_.reset();
    } else if (action == PointerAction::Press && contains(area_, at)) {
        drag_ = at;
    } else if (drag_) {
        pan(at.x - drag_->x, at.y - drag_->y);
        drag_ = at;
    }
}

void GraphicScreen::pan(int dx, int dy) {
    view_->pan(dx, dy);
    drawLayer();
}

ToolMark GraphicScreen::toolMark() const {
    GPoint tip = tool_;
    GPTOffsetPoint(&tip, static_cast<int16_t>(area_.left + layer_->size().width / 2),
                   static_cast<int16_t>(area_.top + layer_->size().height / 2));
    return {view_->projection(), tip};
}

void GraphicScreen::draw(const GRect& area) const {
    layer_->copyTo(painter(), area, {area_.left, area_.top});
    for (const Readout& value : position_) {
        value.draw(painter(), area);
    }
    grid_.draw(painter(), area);
    if (meet(toolMark().area(), area)) {
        toolMark().draw(painter());
    }
}

} // namespace

std::unique_ptr<Screen> makeGraphicScreen(Context& context) {
    return std::make_unique<GraphicScreen>(context);
}

} // namespace panel
