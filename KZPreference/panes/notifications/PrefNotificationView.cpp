#include "KZPreference/panes/notifications/PrefNotificationView.h"

#include <QCheckBox>

#include "KZPreference/panes/notifications/MeetingAlertsSubView.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"

namespace {

void storeNotificationValue(const char* key, const QVariant& value) {
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  Dictionary settings = store.meetingNotification().value_or(Dictionary());
  settings.insert(QString::fromLatin1(key), value);
  store.setMeetingNotification(settings);
}

}  // namespace

PrefNotificationView::PrefNotificationView(const Frame& frame,
                                           PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initSubviews();
}

void PrefNotificationView::initSubviews() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const Frame row{0, 16, frameOf(this).width, MeetingAlertsSubView::caculateViewSize().height};
  m_meetingAlertsView = new MeetingAlertsSubView(row, m_actionDelegate);
  m_meetingAlertsView->setObjectName(QStringLiteral("MeetingAlertsSubView"));
  addSubview(this, m_meetingAlertsView, row);
}

void PrefNotificationView::setPreference(const Content& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  m_meetingAlertsView->setPreference(preference);
}

void PrefNotificationView::onMeetingAlertsButton(const QCheckBox* sender) {
  storeNotificationValue("MeetingToast", sender->isChecked());
}

void PrefNotificationView::onMeetingAlertsMinutesButton(const PopUpButton* sender) {
  storeNotificationValue("MeetingToastMinutes", sender->title());
}

void PrefNotificationView::onSnoozeButton(const QCheckBox* sender) {
  storeNotificationValue("ToastSnooze", sender->isChecked());
}

void PrefNotificationView::onSnoozeMinutesButton(const PopUpButton* sender) {
  storeNotificationValue("ToastSnoozeMinutes", sender->title());
}

void PrefNotificationView::onMeetingCardButton(const QCheckBox* sender) {
  storeNotificationValue("MeetingCard", sender->isChecked());
}

void PrefNotificationView::onMeetingCardMinutesButton(const PopUpButton* sender) {
  storeNotificationValue("MeetingCardMinutes", sender->title());
}
