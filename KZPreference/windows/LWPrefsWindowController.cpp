#include "KZPreference/windows/LWPrefsWindowController.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "KZPreference/layout/Resources.h"
#include "KZPreference/windows/PaneToolbar.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"
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
constexpr quint32 kScanCodeOfDigitOne = 10;
const QString kFlexibleSpaceIdentifier = QStringLiteral("NSToolbarFlexibleSpaceItemIdentifier");

// The place of a digit key; -1 for other keys. Some keyboards have the digits above other characters, so the
// key's position counts too.
int placeOfDigit(const QKeyEvent& key) {
  if (key.key() >= Qt::Key_1 && key.key() <= Qt::Key_9) return key.key() - Qt::Key_1;
  const bool isLetter = key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
  const quint32 position = key.nativeScanCode() - kScanCodeOfDigitOne;
  return !isLetter && position < 9 ? static_cast<int>(position) : -1;
}

}  // namespace

LWPrefsWindowController* LWPrefsWindowController::s_shared = nullptr;

LWPrefsWindowController::LWPrefsWindowController() : m_viewAnimation(new ViewAnimation(this)) {
  connect(m_viewAnimation, &ViewAnimation::didEnd, this, &LWPrefsWindowController::animationDidEnd);
}

LWPrefsWindowController::~LWPrefsWindowController() {
  forgetItems();
}

void LWPrefsWindowController::destroyPrefsWindowController() {
  if (!s_shared) return;
  s_shared->close();
  delete std::exchange(s_shared, nullptr);
}

void LWPrefsWindowController::initWindow() {
  ViewAccessible::install();
  auto* window = new Window;
  setWindow(window);
  window->setWindowTitle(localizedString("Preferences"));
  setAccessibleRole(window, QAccessible::Window);

  // The toolbar is made before the panes, so that it comes before them in the tab order.
  m_toolbar = new PaneToolbar(window);
  m_contentView = new ContentView(window);
  m_contentSubview = m_contentView->contentSubview();
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_toolbar);
  column->addWidget(m_contentView);
  setFrame(window, kInitialFrame);
  m_isWindowCreated = true;
}

// A pane that was never shown has no parent to delete it.
void LWPrefsWindowController::forgetItems() {
  for (const QPointer<View>& view : std::as_const(m_toolbarViews))
    if (view && !view->parent()) delete view;
  m_toolbarViews.clear();
  qDeleteAll(m_toolbarItems);
  m_toolbarItems.clear();
  m_toolbarIdentifiers.clear();
}

void LWPrefsWindowController::setupToolbar() {}

void LWPrefsWindowController::showWindow() {
  if (!m_isWindowCreated) {
    initWindow();
    forgetItems();
    setupToolbar();
  }
  if (m_toolbarIdentifiers.isEmpty()) return;
  if (!m_isToolbarFilled) {
    initToolbar();
    showFirstPane();
  }
  stayInFrontOfMainWindow();
  WindowController::showWindow();
}

void LWPrefsWindowController::stayInFrontOfMainWindow() {
  const QWidget* mainWindow = KZApplicationHelper::sharedInstance().mainWindow();
  const bool isInUse = mainWindow && mainWindow->isVisible();
  window()->winId();  // makes the handle
  window()->windowHandle()->setTransientParent(isInUse ? mainWindow->windowHandle() : nullptr);
}

void LWPrefsWindowController::initToolbar() {
  m_isToolbarFilled = true;
  for (const QString& identifier : std::as_const(m_toolbarIdentifiers)) {
    if (identifier == kFlexibleSpaceIdentifier) {
      m_toolbar->addFlexibleSpace();
    } else {
      m_toolbar->addItem(m_toolbarItems.value(identifier));
    }
  }
}

void LWPrefsWindowController::showFirstPane() {
  const QString& first = m_toolbarIdentifiers.first();
  loadViewForIdentifier(first, Animate::No);
  const QRect screen = window()->screen()->availableGeometry();
  // Not the frame's position: the window would move by its decoration when it is first resized.
  window()->setGeometry(
      {screen.center() - QPoint(window()->width() / 2, window()->height() / 2), window()->size()});
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
  addView(view, label, newPNGImageInThisBundle(name));
}

void LWPrefsWindowController::addView(View* view, const QString& label, const QIcon& image) {
  if (!view) return;
  m_toolbarViews.insert(label, view);
  addToolbarItemForIdentifier(label, label, image, &LWPrefsWindowController::toggleActivePreferenceView);
  setAccessibleRole(view, QAccessible::Pane);
  view->setAccessibleName(label);
  if (!m_contentSubview) return;
  // The pane is added once, to get the window's palette and fonts before it is measured or drawn.
  addSubview(m_contentSubview, view, frameOf(view), VerticalAnchor::Top);
  removeFromSuperview(view);
}

void LWPrefsWindowController::toggleActivePreferenceView(QAction* item) {
  displayViewForIdentifier(item->data().toString(), Animate::Yes);
}

void LWPrefsWindowController::loadViewForIdentifier(const QString& identifier, Animate animate) {
  QAction* item = m_toolbarItems.value(identifier);
  if (!m_isToolbarFilled || !item) return;
  item->setChecked(true);
  displayViewForIdentifier(identifier, animate);
}

void LWPrefsWindowController::displayViewForIdentifier(const QString& identifier, Animate animate) {
  View* newView = m_toolbarViews.value(identifier);
  if (!newView) return;
  removeSubviewsBelowTop();
  QWidget* oldView = shownView();
  if (newView == oldView) return;

  const bool isFading = animate == Animate::Yes && m_crossFade;
  const QPixmap oldPicture =
      isFading && ViewAnimation::animates(*window()) ? ViewAnimation::pictureOf(m_contentSubview) : QPixmap();
  const Size size = frameOf(newView).size();
  const double height = frameOf(m_contentSubview).height;
  newView->setVisible(true);
  addSubview(m_contentSubview, newView, {0, height - size.height, size.width, size.height},
             VerticalAnchor::Top);
  window()->setInitialFirstResponder(newView);
  if (isFading) return crossFadeView(newView, oldPicture);

  m_viewAnimation->stop();
  clearFocus();
  if (oldView) removeFromSuperview(oldView);
  if (animate == Animate::Yes) return crossFadeView(newView, QPixmap());
  fitToScreen(newView);
  tellPane();
}

void LWPrefsWindowController::crossFadeView(View* newView, const QPixmap& oldPicture) {
  const Frame endFrame = fittedToScreen(newView);
  Frame startFrame = frameOf(window());
  startFrame.x = endFrame.x;
  startFrame.y = endFrame.maxY() - startFrame.height;
  setFrame(window(), startFrame);
  const bool isSlow =
      m_shiftSlowsAnimation && QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
  m_viewAnimation->setDuration(isSlow ? kSlowFadeSeconds : kFadeSeconds);
  m_viewAnimation->start({.newView = newView, .window = window(), .endSize = endFrame.size()}, oldPicture);
}

void LWPrefsWindowController::animationDidEnd() {
  clearFocus();
  removeSubviewsBelowTop();
  windowRoomDidChange();
  tellPane();
}

// An item of the toolbar that has the focus, and an opening window, tell the name themselves.
void LWPrefsWindowController::tellPane() {
  if (window()->isOnScreen() && !m_toolbar->hasKeyboard())
    announce(shownView(), shownView()->accessibleName());
}

// Called before views are removed, because Qt would give the focus of a view that goes to any other. The
// toolbar keeps the focus, so that the arrow keys go on choosing.
void LWPrefsWindowController::clearFocus() {
  QWidget* focused = window()->focusWidget();
  if (!focused || m_toolbar->hasKeyboard()) return;
  if (shownView()->isAncestorOf(focused)) return clearFirstResponder(window());
  focused->clearFocus();
}

View* LWPrefsWindowController::shownView() const {
  const QList<QWidget*> shown = subviewsOf(m_contentSubview);
  return shown.isEmpty() ? nullptr : static_cast<View*>(shown.last());
}

void LWPrefsWindowController::removeSubviewsBelowTop() {
  QList<QWidget*> shown = subviewsOf(m_contentSubview);
  if (!shown.isEmpty()) shown.removeLast();
  for (QWidget* below : std::as_const(shown)) removeFromSuperview(below);
}

Frame LWPrefsWindowController::frameForView(const View* view) const {
  const Size size = frameOf(view).size();
  const Frame frame = window() ? frameOf(window()) : Frame();
  const double contentHeight = window() ? frame.height - m_toolbar->sizeHint().height() : 0;
  const float chromeHeight = static_cast<float>(frame.height - contentHeight);
  const double height = size.height + static_cast<double>(chromeHeight);
  return {.x = frame.x, .y = frame.maxY() - height, .width = size.width, .height = height};
}

void LWPrefsWindowController::windowRoomDidChange() {
  const View* view = shownView();
  if (view && !m_viewAnimation->isRunning()) fitToScreen(view);
}

void LWPrefsWindowController::fitToScreen(const View* view) {
  setFrame(window(), fittedToScreen(view));
}

// The frame for the view, moved up and to the left where it would leave the screen, and as large as the
// screen allows. The rest of the view scrolls.
Frame LWPrefsWindowController::fittedToScreen(const View* view) {
  const Frame frame = frameForView(view);
  const Frame room = roomFor(window());
  Frame fitted = frame;
  fitted.width = std::min(frame.width, room.width);
  fitted.height = std::min(frame.height, room.height);
  fitted.y = std::clamp(frame.maxY() - fitted.height, room.y, room.maxY() - fitted.height);
  // A wider pane brings the window back; a window that the user put across the edge stays there.
  const double growth = std::max(0.0, fitted.width - frameOf(window()).width);
  fitted.x -= std::clamp(fitted.maxX() - room.maxX(), 0.0, growth);

  // The decoration may not be known yet.
  if (!window()->isOnScreen()) window()->forgetRoom();
  const QSize given = window()->foreignSize();
  const Size visible = given.isValid() ? Size{double(given.width()), double(given.height())} : fitted.size();
  m_contentView->setContentSize(frameOf(view).size(),
                                {visible.width, visible.height - m_toolbar->sizeHint().height()});
  return fitted;
}

void LWPrefsWindowController::keyDown(QKeyEvent* event) {
  const bool isCommand = event->modifiers().testFlag(Qt::ControlModifier);
  const bool isShifted = event->modifiers().testFlag(Qt::ShiftModifier);
  if (isCommand && !isShifted && event->key() == Qt::Key_W) return close();
  if (isCommand && choosePaneByKey(*event)) return;
  WindowController::keyDown(event);
}

bool LWPrefsWindowController::choosePaneByKey(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  const auto chooseNeighbour = [this](int step) {
    m_toolbar->chooseNeighbour(step, PaneToolbar::AtEnd::Wrap);
    return true;
  };
  // Shift belongs to the shortcut here.
  const QScopedValueRollback slows(m_shiftSlowsAnimation, false);
  switch (key.key()) {
    case Qt::Key_PageDown:
      return chooseNeighbour(1);
    case Qt::Key_Tab:
      return chooseNeighbour(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
    case Qt::Key_PageUp:
    case Qt::Key_Backtab:
      return chooseNeighbour(-1);
    default:
      break;
  }
  const int place = placeOfDigit(key);
  if (place < 0) return false;
  m_toolbar->chooseItem(place);
  return true;
}
