#include "KZPreference/windows/LWPrefsWindowController.h"

#include <QActionGroup>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "KZPreference/layout/Resources.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/ContentView.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/View.h"
#include "platform/ViewAccessible.h"
#include "platform/ViewAnimation.h"

namespace {

constexpr double kFadeSeconds = 0.25;
constexpr double kSlowFadeSeconds = 1.25;
constexpr Frame kInitialFrame{.x = 0, .y = 0, .width = 1000, .height = 1000};
const QString kFlexibleSpaceIdentifier = QStringLiteral("NSToolbarFlexibleSpaceItemIdentifier");

void addSpaceTo(QToolBar* toolbar) {
  auto* space = new QWidget;
  space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  toolbar->addWidget(space);
}

}  // namespace

std::unique_ptr<LWPrefsWindowController> LWPrefsWindowController::s_shared;

LWPrefsWindowController::LWPrefsWindowController() : m_viewAnimation(new ViewAnimation(this)) {
  connect(m_viewAnimation, &ViewAnimation::didEnd, this, &LWPrefsWindowController::animationDidEnd);
}

LWPrefsWindowController::~LWPrefsWindowController() {
  // A pane that was never shown has no parent to delete it.
  for (const QPointer<View>& view : std::as_const(m_toolbarViews))
    if (view && !view->parent()) delete view;
}

void LWPrefsWindowController::destroyPrefsWindowController() {
  if (!s_shared) return;
  s_shared->close();
  s_shared.reset();
}

void LWPrefsWindowController::initWindow() {
  ViewAccessible::install();
  auto* window = new Window;
  setWindow(window);
  window->setWindowTitle(localizedString("Preferences"));

  m_contentView = new ContentView(window);
  m_contentSubview = m_contentView->contentSubview();
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_contentView);
  setFrame(window, kInitialFrame);
  m_isWindowCreated = true;
}

void LWPrefsWindowController::setupToolbar() {}

void LWPrefsWindowController::showWindow() {
  if (!m_isWindowCreated) {
    initWindow();
    m_toolbarIdentifiers.clear();
    m_toolbarViews.clear();
    m_toolbarItems.clear();
    setupToolbar();
  }
  if (m_toolbarIdentifiers.isEmpty()) return;
  if (!m_toolbar) {
    initToolbar();
    showFirstPane();
  }
  WindowController::showWindow();
}

void LWPrefsWindowController::initToolbar() {
  m_toolbar = new QToolBar(window());
  m_toolbar->setObjectName(QStringLiteral("LWPreferencesToolbar"));
  m_toolbar->setMovable(false);
  m_toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
  m_toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  m_toolbar->setStyle(window()->style());
  m_selection = new QActionGroup(m_toolbar);
  for (const QString& identifier : std::as_const(m_toolbarIdentifiers)) {
    if (identifier == kFlexibleSpaceIdentifier) {
      addSpaceTo(m_toolbar);
      continue;
    }
    QAction* item = m_toolbarItems.value(identifier);
    m_toolbar->addAction(item);
    if (!item->isCheckable()) continue;
    m_selection->addAction(item);
    QWidget* button = m_toolbar->widgetForAction(item);
    button->setStyle(window()->style());
    button->setFocusPolicy(Qt::TabFocus);
  }
  static_cast<QVBoxLayout*>(window()->layout())->insertWidget(0, m_toolbar);
}

void LWPrefsWindowController::showFirstPane() {
  const QString& first = m_toolbarIdentifiers.first();
  loadViewForIdentifier(first, Animate::No);
  const QRect screen = window()->screen()->availableGeometry();
  window()->move(screen.center() - QPoint(window()->width() / 2, window()->height() / 2));
  if (View* pane = m_toolbarViews.value(first)) pane->setFocus(Qt::OtherFocusReason);
}

void LWPrefsWindowController::addToolbarItemForIdentifier(const QString& identifier, const QString& label,
                                                          const QIcon& image, ToolbarAction action) {
  QAction* replaced = m_toolbarItems.take(identifier);
  if (replaced && identifier != kFlexibleSpaceIdentifier) {
    MVRNSWarningFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "two toolbar items are called %@", identifier);
  }
  delete replaced;
  m_toolbarIdentifiers.append(identifier);
  auto* item = new QAction(image, label, this);
  item->setData(identifier);
  if (action) connect(item, &QAction::triggered, this, [this, item, action] { (this->*action)(item); });
  m_toolbarItems.insert(identifier, item);
}

void LWPrefsWindowController::addFlexibleSpacer() {
  addToolbarItemForIdentifier(kFlexibleSpaceIdentifier, QString(), QIcon(), nullptr);
}

void LWPrefsWindowController::addView(View* view, const QString& label) {
  const QString name = QStringLiteral("preference_%1").arg(label).toLower();
  addView(view, label, paneImage(name));
}

void LWPrefsWindowController::addView(View* view, const QString& label, const QIcon& image) {
  if (!view) return;
  m_toolbarViews.insert(label, view);
  addToolbarItemForIdentifier(label, label, image, &LWPrefsWindowController::toggleActivePreferenceView);
  m_toolbarItems.value(label)->setCheckable(true);
  if (!m_contentSubview) return;
  // The pane is added once, to get the window's palette and fonts before it is measured or drawn.
  addSubview(m_contentSubview, view, frameOf(view), VerticalAnchor::Top);
  removeFromSuperview(view);
}

void LWPrefsWindowController::toggleActivePreferenceView(QAction* item) {
  displayViewForIdentifier(item->data().toString(), Animate::Yes);
}

void LWPrefsWindowController::loadViewForIdentifier(const QString& identifier, Animate animate) {
  if (!m_toolbarViews.contains(identifier)) return;
  m_toolbarItems.value(identifier)->setChecked(true);
  displayViewForIdentifier(identifier, animate);
}

void LWPrefsWindowController::displayViewForIdentifier(const QString& identifier, Animate animate) {
  View* newView = m_toolbarViews.value(identifier);
  if (!newView) return;
  removeSubviewsBelowTop();
  const QList<QWidget*> shown = subviewsOf(m_contentSubview);
  QWidget* oldView = shown.isEmpty() ? nullptr : shown.last();
  if (newView == oldView) return;

  const bool isFading = animate == Animate::Yes && m_crossFade;
  const QPixmap oldPicture = isFading ? ViewAnimation::pictureOf(m_contentSubview) : QPixmap();
  const Size size = frameOf(newView).size();
  const double height = frameOf(m_contentSubview).height;
  newView->setVisible(true);
  addSubview(m_contentSubview, newView, {0, height - size.height, size.width, size.height},
             VerticalAnchor::Top);
  const Frame bounded = boundedByScreen(frameForView(newView));
  m_contentView->setContentSize(size, {bounded.width, bounded.height - m_toolbar->sizeHint().height()});
  if (isFading) return crossFadeView(newView, oldPicture);

  m_viewAnimation->stop();
  if (oldView) removeFromSuperview(oldView);
  setFrame(window(), bounded);
}

void LWPrefsWindowController::crossFadeView(View* newView, const QPixmap& oldPicture) {
  const bool isSlow =
      m_shiftSlowsAnimation && QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
  m_viewAnimation->setDuration(isSlow ? kSlowFadeSeconds : kFadeSeconds);
  m_viewAnimation->start(
      {.newView = newView, .window = window(), .endFrame = boundedByScreen(frameForView(newView))},
      oldPicture);
}

void LWPrefsWindowController::animationDidEnd() {
  removeSubviewsBelowTop();
  clearFirstResponder(window());
}

void LWPrefsWindowController::removeSubviewsBelowTop() {
  QList<QWidget*> shown = subviewsOf(m_contentSubview);
  if (!shown.isEmpty()) shown.removeLast();
  for (QWidget* below : std::as_const(shown)) removeFromSuperview(below);
}

Frame LWPrefsWindowController::frameForView(const View* view) const {
  const Frame frame = frameOf(window());
  const double contentHeight = frame.height - m_toolbar->sizeHint().height();
  const float chromeHeight = static_cast<float>(frame.height - contentHeight);
  const Size size = frameOf(view).size();
  const double height = size.height + static_cast<double>(chromeHeight);
  return {.x = frame.x, .y = frame.maxY() - height, .width = size.width, .height = height};
}

Frame LWPrefsWindowController::boundedByScreen(const Frame& frame) const {
  const QSize screen = window()->screen()->availableSize();
  Frame bounded = frame;
  bounded.width = std::min(frame.width, double(screen.width()));
  bounded.height = std::min(frame.height, double(screen.height()));
  bounded.y = frame.maxY() - bounded.height;
  return bounded;
}

void LWPrefsWindowController::keyDown(QKeyEvent* event) {
  const bool isCommand = event->modifiers().testFlag(Qt::ControlModifier);
  const bool isShifted = event->modifiers().testFlag(Qt::ShiftModifier);
  if (isCommand && !isShifted && event->key() == Qt::Key_W) return close();
  WindowController::keyDown(event);
}
