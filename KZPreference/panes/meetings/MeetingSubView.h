#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class BRNHyperlinkTextField;

// The personal room: its addresses with a Copy link each, and a link to the meeting settings.
class MeetingSubView final : public View {
  Q_OBJECT

 public:
  MeetingSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  // An empty address leaves the one shown as it is.
  void setPMRUrl(const QString& pmrurl, const QString& sipurl);

  QList<DrawnText> drawnTexts() const override;
  QSize minimumSizeHint() const override;

 private:
  void initEditButton();
  BRNHyperlinkTextField* createCopyButton(const char* name, const QString& spoken);
  void placeCopyButtons();
  void onEditButton();
  void onCopyPmrurlButton();
  void onCopySipurlButton();
  static bool putOnPasteboard(const QString& text);
  void setCopiedUrlBtn(BRNHyperlinkTextField* button);
  void resetCopyPmrUrlBtn();
  void resetCopySipUrlBtn();

  DrawnText drawMeetingLabel() const;
  QList<DrawnText> drawMinimum() const;
  QList<DrawnText> drawMedium() const;
  QList<DrawnText> drawMaximum() const;

  PreferenceActionDelegateProtocol* m_actionDelegate;
  QString m_pmrurl;
  QString m_sipurl;
  BRNHyperlinkTextField* m_copyPmrurlBtn = nullptr;
  BRNHyperlinkTextField* m_copySipurlBtn = nullptr;
};
