#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class QCheckBox;

// What both General panes share: the start-at-login choice, written to the store and told to the host at each
// click.
class StartAtLoginView : public View {
  Q_OBJECT

 public:
  StartAtLoginView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

 protected:
  // The stored choice; true when there is none.
  static bool storedChoice(const QString& key);

  void initCheckingStartState();
  void initStartCheckingCheckbox(const Frame& frame, const QString& title);
  // A row of the pane's width, from its lower edge up.
  Frame checkboxFrame(double y) const;
  QString getLocalizedString(const char* key) const;

  PreferenceActionDelegateProtocol* m_actionDelegate;
  bool m_isStartWhenComputerStarts = true;

 private:
  void onStartCheckingButton();

  QCheckBox* m_startCheckingBtn = nullptr;
};
