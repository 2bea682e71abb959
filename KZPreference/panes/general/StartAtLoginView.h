#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class QCheckBox;

// The part that both General panes share: the start-at-login choice, stored and sent to the host at each
// click.
class StartAtLoginView : public View {
  Q_OBJECT

 public:
  StartAtLoginView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

 protected:
  // The stored choice; true when there is none.
  void initCheckingStartState();
  void initStartCheckingCheckbox(const Frame& frame, const QString& title);
  // A row across the pane, `y` points above its lower edge.
  Frame checkboxFrame(double y) const;
  QString getLocalizedString(const char* key) const;

  PreferenceActionDelegateProtocol* m_actionDelegate;
  bool m_isStartWhenComputerStarts = true;

 private:
  void onStartCheckingButton();

  QCheckBox* m_startCheckingBtn = nullptr;
};
