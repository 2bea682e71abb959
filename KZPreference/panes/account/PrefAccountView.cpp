#include "KZPreference/panes/account/PrefAccountView.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"

namespace {

// Lower edges of the three rows.
constexpr double kNameRow = 72;
constexpr double kSiteRow = 48;
constexpr double kEmailRow = marginAtBottomEdge;

}  // namespace

PrefAccountView::PrefAccountView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initLabels();
  initTxts();
  initChangeSiteButton();
}

void PrefAccountView::initLabels() {
  const auto add = [this](const char* name, double y, const QString& text) {
    addLabel(this, name, {marginAtLeftEdge, y, labelWidth(), commonLabelHeight}, text, Qt::AlignRight);
  };
  add("m_nameLabel", kNameRow, fullNameLabel());
  add("m_siteLabel", kSiteRow, siteUrlLabel());
  add("m_emailLabel", kEmailRow, emailAddressLabel());
}

Frame PrefAccountView::contentFrame(double y) const {
  return {marginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent, y, contentWidth(),
          commonLabelHeight};
}

void PrefAccountView::initTxts() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  const auto add = [this](const char* name, const char* label, double y, const QString& text) {
    StaticText* value = addLabel(this, name, contentFrame(y), text);
    setAccessibleLabel(value, findChild<StaticText*>(QLatin1String(label)));
    return value;
  };
  m_nameTxt = add("m_nameTxt", "m_nameLabel", kNameRow, profile.displayName());
  m_siteTxt = add("m_siteTxt", "m_siteLabel", kSiteRow, profile.siteName());
  m_emailTxt = add("m_emailTxt", "m_emailLabel", kEmailRow, profile.userName());
}

void PrefAccountView::initChangeSiteButton() {
  // Right after the site's text, not after the column.
  Frame frame = contentFrame(kSiteRow);
  frame.x += systemTextWidth(KZPlistFileHandle::sharedInstance().siteName()) + textPad +
             marginBetweenContentAndButton;
  frame.width = buttonWidth();
  BRNHyperlinkTextField* link = addLink(this, "m_changeSiteBtn", frame, changeSiteButtonLabel());
  connect(link, &BRNHyperlinkTextField::clicked, this, &PrefAccountView::onChangeSiteButton);
}

void PrefAccountView::setSite(const QString& site, const QString& email, const QString& name) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "site:%@, email:%@, name:%@", site, email, name);
  if (!site.isNull()) m_siteTxt->setText(site);
  if (!email.isNull()) m_emailTxt->setText(email);
  if (!name.isNull()) m_nameTxt->setText(name);
}

void PrefAccountView::onChangeSiteButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_actionDelegate->changeSite();
}
