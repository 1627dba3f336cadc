#include "drawing/picture.h"

#include "drawing/axes.h"
#include "drawing/backdrop.h"
#include "drawing/grid.h"
#include "drawing/layout.h"
#include "drawing/path_painter.h"
#include "drawing/style.h"
#include "drawing/view.h"

#include <algorithm>
#include <iterator>

namespace toolpath {
namespace {

constexpr size_t kSlices = 12;          // of a long path
constexpr size_t kSmallestSlice = 4096; // moves

class Picture {
  public:
    Picture(GDrawHandle* handle, const ToolPath& path);

    void draw();

  private:
    void drawGround();
    void drawPath();
    void showProgress(size_t done, size_t all);
    void selectDisplay();
    void fill(const GRect& rect, Ink ink);
    void show();

    GDrawHandle* handle_;
    const ToolPath& path_;
    Style style_;
    Layout layout_;
    View plan_;
    View isometric_;
    Grid grid_;
    Box3 work_; ///< what is machined, out to the next lines of the grid
};

Picture::Picture(GDrawHandle* handle, const ToolPath& path)
    : handle_(handle),
      path_(path),
      style_(prepareStyle(handle)),
      layout_(*GDGetVram(handle)),
      plan_(Projection::Plan, machinedBox(path), layout_.plan),
      isometric_(Projection::Isometric, machinedBox(path), layout_.isometric) {
    // How close the lines of the grid are hangs on the scale, and the scale on the work area.
    grid_ = gridFor(std::min(plan_.scale(), isometric_.scale()), path.unit);
    work_ = grownToGrid(machinedBox(path), grid_);
    plan_ = View(Projection::Plan, work_, layout_.plan);
    isometric_ = View(Projection::Isometric, work_, layout_.isometric);
}

void Picture::draw() {
    drawGround();
    drawPath();
    drawAxes(handle_, style_, plan_);
    drawAxes(handle_, style_, isometric_);
    selectDisplay();
    show();
}

void Picture::drawGround() {
    selectDisplay();
    fill(layout_.display, Ink::Desk);
    GDSetPenColor(handle_, style_[Ink::Frame]);
    GDSetFillPattern(handle_, G_FILL_NONE);
    GDDrawRect(handle_, &layout_.planFrame);
    GDDrawRect(handle_, &layout_.isometricFrame);
    drawPlanGround(handle_, style_, plan_, work_, grid_);
    drawIsometricGround(handle_, style_, isometric_, work_, grid_);
    selectDisplay();
    show();
}

/// Rapids below cuts below points.
void Picture::drawPath() {
    constexpr MoveKind kKinds[] = {MoveKind::Rapid, MoveKind::Cut, MoveKind::Point};
    const PathPainter painter(handle_, style_, path_);
    const size_t moves = path_.moves.size();
    const size_t slice = std::max(kSmallestSlice, moves / kSlices + 1);
    size_t done = 0;
    for (const MoveKind kind : kKinds) {
        for (size_t begin = 0; begin < moves; begin += slice) {
            const size_t end = std::min(begin + slice, moves);
            painter.paint(plan_, kind, begin, end);
            painter.paint(isometric_, kind, begin, end);
            done += end - begin;
            if (slice < moves) {
                showProgress(done, moves * std::size(kKinds));
            }
        }
    }
}

/// Shows what is drawn so far and a bar that tells how far that is. The bar goes at the end.
void Picture::showProgress(size_t done, size_t all) {
    selectDisplay();
    const double part = static_cast<double>(done) / static_cast<double>(all);
    GRect bar = layout_.bar;
    bar.right = static_cast<int16_t>(bar.left + part * (bar.right - bar.left));
    fill(bar, done < all ? Ink::Progress : Ink::Desk);
    show();
}

/// Back to the coordinates of the display.
void Picture::selectDisplay() {
    const GPoint origin{0, 0};
    GDSetLocalOrigin(handle_, &origin);
    GDSetClipRect(handle_, nullptr);
}

void Picture::fill(const GRect& rect, Ink ink) {
    GDSetPenColor(handle_, G_NO_COLOR);
    GDSetFillAttribute(handle_, G_FILL_FORE, style_[ink], style_[ink]);
    GDDrawRect(handle_, &rect);
}

void Picture::show() {
    const GRect& all = layout_.display;
    GDFlushScreen(handle_, all.left, all.top, static_cast<int16_t>(all.right + 1),
                  static_cast<int16_t>(all.bottom + 1));
}

} // namespace

void drawPicture(GDrawHandle* handle, const ToolPath& path) {
    Picture(handle, path).draw();
}

} // namespace toolpath
