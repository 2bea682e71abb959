#pragma once

#include <array>

#include "KZPreference/calendar/CalendarIntegrationGroup.h"
#include "KZPreference/contract/KZCalendarIntegrationOption.h"

// The signed-in user's calendar integration: no calendar, the service's own, Google's, or Outlook's.
class CalendarIntegrationSubView final : public CalendarIntegrationGroup {
  Q_OBJECT

 public:
  CalendarIntegrationSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

  void setCalendarPreference(const Dictionary& preference) override;
  // Which sources may be chosen. A source once hidden stays hidden.
  void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);
  void windowDidBecomeKey() override;

 protected:
  void initRadioButtons() override;
  void updateByAppliedState() override;
  void enableOutlook() override;
  void reportSourceOnClose() override;

 private:
  void onNoneButton();
  void onMivRaButton();
  void onGoogleButton();
  void enableNone();
  void enableMivRa();
  void enableGoogle();
  void enableWithoutAccount(QRadioButton* button);
  std::array<QRadioButton*, 4> radioButtons() const;
  void updateTabStop(bool isOn);
  QString calendarSourceByButton() const;
  void relayoutButtons();

  QString m_sourceOnWindowOpening;
  QRadioButton* m_mivraRadioBtn = nullptr;
  QRadioButton* m_googleRadioBtn = nullptr;
  QRadioButton* m_noneRadioBtn = nullptr;
};
