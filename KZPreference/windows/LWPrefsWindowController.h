#pragma once

#include <QAction>
#include <QHash>
#include <QIcon>
#include <QStringList>

#include "platform/Frame.h"
#include "platform/WindowController.h"

class ContentView;
class QActionGroup;
class QToolBar;
class View;
class ViewAnimation;

enum class Animate { No, Yes };

// A window that shows one of the panes in its toolbar. A switch keeps the window's upper edge in place and,
// with `crossFade`, blends the panes. Subclasses add their panes in `setupToolbar`, which the first
// `showWindow` calls. Main thread only.
class LWPrefsWindowController : public WindowController {
  Q_OBJECT
  Q_PROPERTY(bool crossFade READ crossFade WRITE setCrossFade)
  Q_PROPERTY(bool shiftSlowsAnimation READ shiftSlowsAnimation WRITE setShiftSlowsAnimation)

 public:
  using ToolbarAction = void (LWPrefsWindowController::*)(QAction* item);

  LWPrefsWindowController();
  ~LWPrefsWindowController() override;

  // The one instance, of the class of the first call.
  template <typename Controller = LWPrefsWindowController>
  static LWPrefsWindowController& sharedPrefsWindowController() {
    if (!s_shared) s_shared = std::make_unique<Controller>();
    return *s_shared;
  }
  static void destroyPrefsWindowController();

  bool crossFade() const { return m_crossFade; }
  void setCrossFade(bool isOn) { m_crossFade = isOn; }
  bool shiftSlowsAnimation() const { return m_shiftSlowsAnimation; }
  void setShiftSlowsAnimation(bool isOn) { m_shiftSlowsAnimation = isOn; }

  // Shows nothing when there is no pane. An existing window keeps its pane and its position.
  void showWindow() override;

  // Replaces an item with the same identifier, with a warning trace.
  void addToolbarItemForIdentifier(const QString& identifier, const QString& label, const QIcon& image,
                                   ToolbarAction action);
  void addFlexibleSpacer();
  // Takes ownership; a null view is ignored. The label is also the pane's identifier. Without an image, the
  // one named "preference_" and the label in lower case is used.
  void addView(View* view, const QString& label);
  void addView(View* view, const QString& label, const QIcon& image);

  // An unknown identifier changes nothing.
  void loadViewForIdentifier(const QString& identifier, Animate animate);

  // The window's frame when it shows the view: same upper edge, the view's width.
  Frame frameForView(const View* view) const;

 protected:
  virtual void setupToolbar();
  void keyDown(QKeyEvent* event) override;

 private:
  void initWindow();
  void initToolbar();
  void showFirstPane();
  void toggleActivePreferenceView(QAction* item);
  void displayViewForIdentifier(const QString& identifier, Animate animate);
  void crossFadeView(View* newView, const QPixmap& oldPicture);
  void animationDidEnd();
  void removeSubviewsBelowTop();
  Frame boundedByScreen(const Frame& frame) const;

  static std::unique_ptr<LWPrefsWindowController> s_shared;

  bool m_isWindowCreated = false;
  bool m_crossFade = true;
  bool m_shiftSlowsAnimation = true;
  QStringList m_toolbarIdentifiers;
  QHash<QString, QPointer<View>> m_toolbarViews;
  QHash<QString, QAction*> m_toolbarItems;
  ViewAnimation* m_viewAnimation;
  ContentView* m_contentView = nullptr;
  QWidget* m_contentSubview = nullptr;
  QToolBar* m_toolbar = nullptr;
  QActionGroup* m_selection = nullptr;
};
