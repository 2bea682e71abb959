#include "platform/FrameLayout.h"

#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QVariant>
#include <QWindow>
#include <cmath>
#include <optional>

#include "platform/Look.h"
#include "platform/WindowController.h"

namespace {

constexpr int kEdgeMargin = 8;
constexpr char kFrameProperty[] = "platformFrame";

struct Placement {
  Frame frame;
  VerticalAnchor anchor = VerticalAnchor::Bottom;
};

std::optional<Placement> placementOf(const QWidget* view) {
  const QVariant kept = view->property(kFrameProperty);
  return kept.isValid() ? std::optional(kept.value<Placement>()) : std::nullopt;
}

void keep(QWidget* view, const Placement& placement) {
  view->setProperty(kFrameProperty, QVariant::fromValue(placement));
}

double heightOf(const QWidget* view) {
  return frameOf(view).height;
}

// Edges are rounded, not sizes, so that neighbours that touch in points touch in pixels.
QRect geometryIn(const QWidget* parent, const Frame& frame) {
  const double height = heightOf(parent);
  const int left = qRound(frame.x);
  const int right = qRound(frame.maxX());
  const int top = qRound(height - frame.maxY());
  const int bottom = qRound(height - frame.y);
  return {left, top, right - left, bottom - top};
}

// What a view needs beyond its frame is given to it where its superview has room: at its end, and above and
// below alike; below only for a view that is filled from the top.
QRect withNeededRoom(const QWidget* view, QRect place, bool isFilledFromTop) {
  const QSize least = view->minimumSizeHint();
  const QRect room = view->parentWidget()->rect();
  if (least.width() > 0) {
    place.setWidth(qMax(place.width(), least.width()));
    // As far as the part that is needed would come too near to the superview's edge.
    const int excess = qMin(place.left() + least.width() + kEdgeMargin - room.width(), place.left());
    if (excess > 0) place.translate(-excess, 0);
  }
  const int wrapped = view->hasHeightForWidth() ? view->heightForWidth(place.width()) : 0;
  const int more = qMax(least.height(), wrapped) - place.height();
  if (more <= 0) return place;
  if (isFilledFromTop || wrapped > 0) {
    place.setBottom(qMin(place.bottom() + more, qMax(place.bottom(), room.bottom())));
    return place;
  }
  // As much on each side, so that the text stays on one line with its neighbours.
  place.adjust(0, -(more + 1) / 2, 0, (more + 1) / 2);
  place.translate(0, qMin(0, room.bottom() - place.bottom()));
  place.translate(0, qMax(0, -place.top()));
  return place;
}

QSize roundedSize(const Frame& frame) {
  return {static_cast<int>(std::ceil(frame.width)), static_cast<int>(std::ceil(frame.height))};
}

double screenHeight(const QWidget* window) {
  return window->screen()->geometry().bottom() + 1.0;
}

// Wayland leaves the place of a window to the compositor.
bool canMoveItself(const QWidget* window) {
  const auto* titled = qobject_cast<const Window*>(window);
  const bool isPlaced = window->isVisible() && (!titled || titled->isOnScreen());
  return isPlaced && !isOnWayland();
}

// Places the subviews of one view by their frames.
class Placer final : public QObject {
 public:
  static Placer* of(const QWidget* parent) {
    return static_cast<Placer*>(
        parent->findChild<QObject*>(QStringLiteral("platformPlacer"), Qt::FindDirectChildrenOnly));
  }

  static Placer& ensured(QWidget* parent) {
    Placer* placer = of(parent);
    return placer ? *placer : *new Placer(parent);
  }

  void add(QWidget* child) {
    remove(child);
    m_children.append(child);
  }

  void remove(const QObject* child) {
    m_children.removeIf([child](const QPointer<QWidget>& known) { return !known || known == child; });
  }

  static void setGeometryOf(QWidget* view, const Frame& frame) {
    const QWidget* parent = view->parentWidget();
    QRect place = geometryIn(parent, frame);
    // Measuring is slow, and most panes are never seen.
    if (parent->isVisible()) place = withNeededRoom(view, place, of(view) != nullptr);
    view->setGeometry(QStyle::visualRect(parent->layoutDirection(), parent->rect(), place));
  }

  QList<QWidget*> children() const {
    QList<QWidget*> alive;
    for (const QPointer<QWidget>& child : m_children)
      if (child && child->parentWidget() == m_view) alive.append(child);
    return alive;
  }

  // Brings the geometry up to date; top-anchored views first move by the change of the height.
  void place() {
    const double height = heightOf(m_view);
    const double growth = height - m_height;
    m_height = height;
    for (QWidget* child : children()) {
      std::optional<Placement> placement = placementOf(child);
      if (!placement) continue;
      if (placement->anchor == VerticalAnchor::Top && growth != 0) {
        placement->frame.y += growth;
        keep(child, *placement);
      }
      setGeometryOf(child, placement->frame);
    }
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // A request comes from a child whose need of room changed.
    const QEvent::Type type = event->type();
    if (type == QEvent::Resize || type == QEvent::Show || type == QEvent::LayoutRequest ||
        type == QEvent::LayoutDirectionChange)
      place();
    if (event->type() == QEvent::ChildRemoved) remove(static_cast<QChildEvent*>(event)->child());
    return QObject::eventFilter(watched, event);
  }

 private:
  explicit Placer(QWidget* view) : QObject(view), m_view(view), m_height(heightOf(view)) {
    setObjectName(QStringLiteral("platformPlacer"));
    view->installEventFilter(this);
  }

  QWidget* m_view;
  double m_height;
  QList<QPointer<QWidget>> m_children;
};

}  // namespace

Q_DECLARE_METATYPE(Placement)

void addSubview(QWidget* parent, QWidget* child, const Frame& frame, VerticalAnchor anchor) {
  Placer& placer = Placer::ensured(parent);
  const bool isHidden = child->testAttribute(Qt::WA_WState_ExplicitShowHide) && child->isHidden();
  if (child->parentWidget() != parent) {
    child->setParent(parent);
    setLookStyle(child);
  }
  keep(child, {.frame = frame, .anchor = anchor});
  placer.add(child);
  Placer::setGeometryOf(child, frame);
  child->raise();
  if (!isHidden) child->show();
}

void removeFromSuperview(QWidget* view) {
  view->hide();
  if (Placer* placer = view->parentWidget() ? Placer::of(view->parentWidget()) : nullptr)
    placer->remove(view);
}

void setFrame(QWidget* view, const Frame& frame) {
  Placement placement = placementOf(view).value_or(Placement());
  placement.frame = frame;
  keep(view, placement);
  if (view->isWindow()) {
    // Moved only when its corner changes, because a window manager may add its decoration's size to every
    // move.
    const QPoint corner(qRound(frame.x), qRound(screenHeight(view) - frame.maxY()));
    const QPoint shift = corner - view->geometry().topLeft();
    setWindowSize(view, frame.size());
    if (!shift.isNull() && canMoveItself(view)) view->move(view->pos() + shift);
  } else {
    Placer::setGeometryOf(view, frame);
  }
  // A hidden view gets its resize event only when it is shown.
  if (Placer* placer = Placer::of(view)) placer->place();
}

void setWindowSize(QWidget* window, const Size& size) {
  Placement placement = placementOf(window).value_or(Placement());
  placement.frame.width = size.width;
  placement.frame.height = size.height;
  keep(window, placement);
  const QSize rounded = roundedSize(placement.frame);
  // The user cannot resize a window; a view without a parent must stay resizable.
  if (!qobject_cast<Window*>(window)) return window->resize(rounded);
  // Each call is sent to the window manager.
  if (window->size() != rounded || window->minimumSize() != rounded) window->setFixedSize(rounded);
}

Frame roomFor(const QWidget* window) {
  const QMargins decoration = window->windowHandle() ? window->windowHandle()->frameMargins() : QMargins();
  const QRect room = window->screen()->availableGeometry() - decoration;
  return {.x = double(room.x()),
          .y = screenHeight(window) - room.y() - room.height(),
          .width = double(room.width()),
          .height = double(room.height())};
}

Frame frameOf(const QWidget* view) {
  const std::optional<Placement> placement = placementOf(view);
  if (placement && !view->isWindow()) return placement->frame;

  const QRect geometry = view->geometry();
  const double parentHeight = view->isWindow() ? screenHeight(view) : heightOf(view->parentWidget());
  const bool isAsPlaced = placement && geometry.size() == roundedSize(placement->frame);
  const Size size =
      isAsPlaced ? placement->frame.size() : Size{double(geometry.width()), double(geometry.height())};
  // Of a window only the upper left corner is exact: its size was rounded up.
  return {.x = double(geometry.x()),
          .y = parentHeight - geometry.y() - size.height,
          .width = size.width,
          .height = size.height};
}

QList<QWidget*> subviewsOf(const QWidget* parent) {
  const Placer* placer = Placer::of(parent);
  return placer ? placer->children() : QList<QWidget*>();
}
