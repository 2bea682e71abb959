#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/panes/account/PrefAccountView+Visible.h"
#include "platform/View.h"

class StaticText;

// The signed-in Account pane: name, site and email, and a link that asks the host for another site.
class PrefAccountView final : public View, public PrefAccountViewVisible {
  Q_OBJECT

 public:
  PrefAccountView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  // A null text leaves its field unchanged.
  void setSite(const QString& site, const QString& email, const QString& name);

 private:
  void initLabels();
  void initTxts();
  void initChangeSiteButton();
  void onChangeSiteButton();
  Frame contentFrame(double y) const;

  PreferenceActionDelegateProtocol* m_actionDelegate;
  StaticText* m_nameTxt = nullptr;
  StaticText* m_siteTxt = nullptr;
  StaticText* m_emailTxt = nullptr;
};
