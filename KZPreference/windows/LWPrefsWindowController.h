#pragma once

#include <QHash>
#include <QIcon>
#include <QPointer>
#include <QStringList>

#include "platform/Frame.h"
#include "platform/WindowController.h"

class ContentView;
class PaneToolbar;
class QAction;
class View;
class ViewAnimation;

enum class Animate { No, Yes };

// A window that shows one of the panes in its toolbar. A switch keeps the window's upper edge in place, as
// long as the screen has room, and blends the panes with `crossFade`. Subclasses add their panes in
// `setupToolbar`, which the first `showWindow` calls; what was added before that is dropped. Main thread
// only.
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
    if (!s_shared) s_shared = new Controller;
    return *s_shared;
  }
  static void destroyPrefsWindowController();

  bool crossFade() const { return m_crossFade; }
  void setCrossFade(bool isOn) { m_crossFade = isOn; }
  bool shiftSlowsAnimation() const { return m_shiftSlowsAnimation; }
  void setShiftSlowsAnimation(bool isOn) { m_shiftSlowsAnimation = isOn; }

  // Shows nothing when there is no pane. An existing window keeps its pane and its position.
  void showWindow() override;

  // Replaces an item with the same identifier, with a warning trace. A click selects the item and calls the
  // action.
  void addToolbarItemForIdentifier(const QString& identifier, const QString& label, const QIcon& image,
                                   ToolbarAction action);
  void addFlexibleSpacer();
  // Takes ownership; a null view is ignored. The label is also the pane's identifier. Without an image, the
  // one named "preference_" and the label in lower case is used.
  void addView(View* view, const QString& label);
  void addView(View* view, const QString& label, const QIcon& image);

  // Selects the item and shows its view. An unknown identifier changes nothing.
  void loadViewForIdentifier(const QString& identifier, Animate animate);

  // The window's frame when it shows the view: same upper edge, the view's width. Without a window, the
  // view's size.
  Frame frameForView(const View* view) const;

 protected:
  virtual void setupToolbar();
  void windowRoomDidChange() override;
  void keyDown(QKeyEvent* event) override;

 private:
  void initWindow();
  void forgetItems();
  void initToolbar();
  void showFirstPane();
  void stayInFrontOfMainWindow();
  void toggleActivePreferenceView(QAction* item);
  void displayViewForIdentifier(const QString& identifier, Animate animate);
  void crossFadeView(View* newView, const QPixmap& oldPicture);
  void animationDidEnd();
  void tellPane();
  void clearFocus();
  View* shownView() const;
  void removeSubviewsBelowTop();
  void fitToScreen(const View* view);
  Frame fittedToScreen(const View* view);
  bool choosePaneByKey(const QKeyEvent& key);

  // Destroyed by `destroyPrefsWindowController` only: a window must not outlive the application object.
  static LWPrefsWindowController* s_shared;

  bool m_isWindowCreated = false;
  bool m_crossFade = true;
  bool m_shiftSlowsAnimation = true;
  QStringList m_toolbarIdentifiers;
  QHash<QString, QPointer<View>> m_toolbarViews;
  QHash<QString, QAction*> m_toolbarItems;
  ViewAnimation* m_viewAnimation;
  ContentView* m_contentView = nullptr;
  QWidget* m_contentSubview = nullptr;
  PaneToolbar* m_toolbar = nullptr;
  bool m_isToolbarFilled = false;
};
