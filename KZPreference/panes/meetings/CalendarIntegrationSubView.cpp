#include "KZPreference/panes/meetings/CalendarIntegrationSubView.h"

#include <QLineEdit>
#include <QRadioButton>

#include "KZPreference/layout/Resources.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

CalendarIntegrationSubView::CalendarIntegrationSubView(const Frame& frame,
                                                       PreferenceActionDelegateProtocol* actionDelegate)
    : CalendarIntegrationGroup(frame, actionDelegate) {
  initControls();
}

void CalendarIntegrationSubView::initRadioButtons() {
  m_noneRadioBtn = addRadioButton("m_noneRadioBtn", 0, localizedString("None"));
  m_mivraRadioBtn = addRadioButton("m_mivraRadioBtn", 1, localizedString("Mivra"));
  m_googleRadioBtn = addRadioButton("m_googleRadioBtn", 2, localizedString("Google"));
  m_outlookRadioBtn = addRadioButton("m_outlookRadioBtn", 3, localizedString("Microsoft Outlook"));
  // Until a preference record enables it.
  m_googleRadioBtn->setEnabled(false);
  for (const auto& [button, source] : buttonsWithSources())
    connect(button, &QRadioButton::toggled, this, &CalendarIntegrationSubView::updateTabStop);
  connect(m_noneRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onNoneButton);
  connect(m_mivraRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onMivRaButton);
  connect(m_googleRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onGoogleButton);
  connect(m_outlookRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onOutlookButton);
}

std::array<std::pair<QRadioButton*, QString>, 4> CalendarIntegrationSubView::buttonsWithSources() const {
  return {{{m_noneRadioBtn, kKZCalendarIntegrationSourceNone},
           {m_mivraRadioBtn, kKZCalendarIntegrationSourceMivRa},
           {m_googleRadioBtn, kKZCalendarIntegrationSourceGoogle},
           {m_outlookRadioBtn, kKZCalendarIntegrationSourceOutlook}}};
}

// Tab stops at the chosen source only; the arrow keys move from there.
void CalendarIntegrationSubView::updateTabStop(bool isOn) {
  if (!isOn) return;
  for (const auto& [button, source] : buttonsWithSources())
    button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

// An unknown source means Outlook.
void CalendarIntegrationSubView::setCalendarPreference(const Dictionary& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  const QString stored = textValue(preference, kKZCalendarIntegrationSource);
  for (const auto& [button, source] : buttonsWithSources()) {
    if (button == m_outlookRadioBtn || !isEqualText(source, stored)) continue;
    updateByAppliedState();
    return enableWithoutAccount(button);
  }
  enableOutlook();  // updates by the applied state itself
}

void CalendarIntegrationSubView::setCalendarIntergrationOption(const KZCalendarIntegrationOption& option) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "none:%d, google:%d", option.isEnableNone,
                         option.isEnableGoogle);
  m_noneRadioBtn->setEnabled(option.isEnableNone);
  m_googleRadioBtn->setEnabled(option.isEnableGoogle);
  relayoutButtons();
}

void CalendarIntegrationSubView::relayoutButtons() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  int row = 0;
  const auto place = [this, &row](QRadioButton* button) {
    Frame frame = frameOf(button);
    frame.y = sourceRowY(row++);
    setFrame(button, frame);
  };
  const auto placeOrHide = [&place](QRadioButton* button) {
    button->isEnabled() ? place(button) : button->hide();
  };
  placeOrHide(m_noneRadioBtn);
  place(m_mivraRadioBtn);
  placeOrHide(m_googleRadioBtn);
  place(m_outlookRadioBtn);
  relayoutAfterResize();
}

void CalendarIntegrationSubView::showAppliedState(bool isApplied) {
  CalendarIntegrationGroup::showAppliedState(isApplied);
  if (m_mivraRadioBtn->isChecked()) m_message.hideMessage();
}

void CalendarIntegrationSubView::enableWithoutAccount(QRadioButton* button) {
  if (!button->isEnabled()) return;
  button->setChecked(true);
  disableCredentialControls();
  m_message.hideMessage();
}

void CalendarIntegrationSubView::enableNone() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableWithoutAccount(m_noneRadioBtn);
}
void CalendarIntegrationSubView::enableMivRa() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableWithoutAccount(m_mivraRadioBtn);
}
void CalendarIntegrationSubView::enableGoogle() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableWithoutAccount(m_googleRadioBtn);
}

void CalendarIntegrationSubView::enableOutlook() {
  if (m_outlookRadioBtn->isEnabled()) CalendarIntegrationGroup::enableOutlook();
}

void CalendarIntegrationSubView::onNoneButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableNone();
  reportSource(kKZCalendarIntegrationSourceNone, TelemetryValue_FeatureName_Click_CalendarSourceNone);
}

void CalendarIntegrationSubView::onMivRaButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableMivRa();
  reportSource(kKZCalendarIntegrationSourceMivRa, TelemetryValue_FeatureName_Click_CalendarSourceMivra);
}

void CalendarIntegrationSubView::onGoogleButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableGoogle();
  reportSource(kKZCalendarIntegrationSourceGoogle, TelemetryValue_FeatureName_Click_CalendarSourceGoogle);
}

QString CalendarIntegrationSubView::calendarSourceByButton() const {
  for (const auto& [button, source] : buttonsWithSources())
    if (button->isChecked()) return source;
  return {};
}

void CalendarIntegrationSubView::windowDidBecomeKey() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_sourceOnWindowOpening = calendarSourceByButton();
}

void CalendarIntegrationSubView::reportSourceOnClose(bool /*isApplied*/) {
  m_isOpeningByDashboard = false;
  if (isEqualText(calendarSourceByButton(), m_sourceOnWindowOpening)) return;
  m_actionDelegate->calendarIntergrationSourceChanged();
}
