#pragma once

#include <array>
#include <utility>

#include "KZPreference/panes/meetings/CalendarIntegrationGroup.h"

// Which calendar sources the user may choose.
struct KZCalendarIntegrationOption {
  bool isEnableNone = false;
  bool isEnableMivra = true;
  bool isEnableGoogle = false;
  bool isEnableOutlook = true;
};

// The signed-in user's calendar integration: no calendar, the service's own, Google's, or Outlook's.
class CalendarIntegrationSubView final : public CalendarIntegrationGroup {
  Q_OBJECT

 public:
  CalendarIntegrationSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

  void setCalendarPreference(const Dictionary& preference) override;
  // A source that is hidden once stays hidden.
  void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);
  void windowDidBecomeKey() override;

 protected:
  void initRadioButtons() override;
  void showAppliedState(bool isApplied) override;
  void enableOutlook() override;
  void reportSourceOnClose(bool isApplied) override;

 private:
  void onNoneButton();
  void onMivRaButton();
  void onGoogleButton();
  void enableNone();
  void enableMivRa();
  void enableGoogle();
  void enableWithoutAccount(QRadioButton* button);
  std::array<std::pair<QRadioButton*, QString>, 4> buttonsWithSources() const;
  void updateTabStop(bool isOn);
  QString calendarSourceByButton() const;
  void relayoutButtons();

  QString m_sourceOnWindowOpening;
  QRadioButton* m_mivraRadioBtn = nullptr;
  QRadioButton* m_googleRadioBtn = nullptr;
  QRadioButton* m_noneRadioBtn = nullptr;
};
