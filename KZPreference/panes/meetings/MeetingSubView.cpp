#include "KZPreference/panes/meetings/MeetingSubView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"

namespace {

using namespace std::chrono_literals;

constexpr double kRowGap = 8;
constexpr auto kCopiedTime = 1s;

DrawnText labelAt(double x, double y, const QString& text) {
  const Size size = labelTextSize(text);
  return {
      .text = text, .frame = {x, y, size.width, size.height}, .role = FontRole::Label, .size = labelFontSize};
}

DrawnText columnLabelAt(double y, double width, const QString& text) {
  DrawnText label = labelAt(secondMarginAtLeftEdge, y, text);
  label.frame.width = width;
  label.alignment = Qt::AlignRight;
  return label;
}

}  // namespace

MeetingSubView::MeetingSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initEditButton();
  m_copyPmrurlBtn = createCopyButton("m_copyPmrurlBtn", localizedString("Copy personal room"));
  m_copySipurlBtn = createCopyButton("m_copySipurlBtn", localizedString("Copy video address"));
  connect(m_copyPmrurlBtn, &BRNHyperlinkTextField::clicked, this, &MeetingSubView::onCopyPmrurlButton);
  connect(m_copySipurlBtn, &BRNHyperlinkTextField::clicked, this, &MeetingSubView::onCopySipurlButton);
  drawnTextsChanged();
}

void MeetingSubView::initEditButton() {
  const Size title = titleTextSize(PrefMeetingViewVisible::meetingslabel());
  const QString text = localizedString("Edit");
  const Size size = labelTextSize(text);
  BRNHyperlinkTextField* link =
      addLink(this, "m_editBtn",
              {marginAtLeftEdge + title.width + marginBetweenLabelAndContent,
               frameOf(this).height - title.height, size.width + textPad, size.height},
              text);
  connect(link, &BRNHyperlinkTextField::clicked, this, &MeetingSubView::onEditButton);
}

BRNHyperlinkTextField* MeetingSubView::createCopyButton(const char* name, const QString& spoken) {
  const QString text = localizedString("Copy");
  const Size size = labelTextSize(text);
  BRNHyperlinkTextField* link = addLink(this, name, {0, 0, size.width + textPad, size.height}, text);
  link->setAccessibleName(spoken);
  link->hide();
  return link;
}

void MeetingSubView::setPMRUrl(const QString& pmrurl, const QString& sipurl) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "pmrurl:%@, sipurl:%@", pmrurl, sipurl);
  if (!pmrurl.isEmpty()) m_pmrurl = pmrurl;
  if (!sipurl.isEmpty()) m_sipurl = sipurl;
  placeCopyButtons();
  drawnTextsChanged();
}

void MeetingSubView::placeCopyButtons() {
  const double labelWidth = std::max(labelTextWidth(PrefMeetingViewVisible::pmrlabel()),
                                     labelTextWidth(PrefMeetingViewVisible::siplabel()));
  const double left = secondMarginAtLeftEdge + labelWidth + marginBetweenLabelAndContent;
  const auto place = [left](BRNHyperlinkTextField* link, const QString& url, double y) {
    link->setVisible(!url.isEmpty());
    if (url.isEmpty()) return;
    const Frame frame = frameOf(link);
    setFrame(link, {left + labelTextWidth(url) + marginLabelToContent, y, frame.width, frame.height});
  };
  place(m_copyPmrurlBtn, m_pmrurl, m_sipurl.isEmpty() ? 0 : labelTextSize(m_sipurl).height + kRowGap);
  place(m_copySipurlBtn, m_sipurl, 0);
}

// The group's width does not include the gaps, so a link may reach beyond it, to the pane's edge; nor does
// its height follow the title's.
QSize MeetingSubView::minimumSizeHint() const {
  const int width = parentWidget() ? parentWidget()->width() - int(frameOf(this).x) : 0;
  return {width, int(titleTextSize(PrefMeetingViewVisible::meetingslabel()).height)};
}

QList<DrawnText> MeetingSubView::drawnTexts() const {
  if (m_pmrurl.isEmpty() && m_sipurl.isEmpty()) return drawMinimum();
  const bool hasBoth = !m_pmrurl.isEmpty() && !m_sipurl.isEmpty();
  return drawMinimum() + (hasBoth ? drawMaximum() : drawMedium());
}

QList<DrawnText> MeetingSubView::drawMinimum() const {
  return {drawMeetingLabel()};
}

DrawnText MeetingSubView::drawMeetingLabel() const {
  const QString title = PrefMeetingViewVisible::meetingslabel();
  const Size size = titleTextSize(title);
  return {.text = title,
          .frame = {marginAtLeftEdge, frameOf(this).height - size.height, size.width, size.height},
          .role = FontRole::BoldSystem,
          .size = boldLabelFontSize};
}

QList<DrawnText> MeetingSubView::drawMedium() const {
  const bool isSip = !m_sipurl.isEmpty();
  const DrawnText label =
      labelAt(secondMarginAtLeftEdge, 0,
              isSip ? PrefMeetingViewVisible::siplabel() : PrefMeetingViewVisible::pmrlabel());
  return {label, labelAt(label.frame.maxX() + marginLabelToContent, 0, isSip ? m_sipurl : m_pmrurl)};
}

QList<DrawnText> MeetingSubView::drawMaximum() const {
  const QString pmrlabel = PrefMeetingViewVisible::pmrlabel();
  const QString siplabel = PrefMeetingViewVisible::siplabel();
  const double column = std::max(labelTextWidth(pmrlabel), labelTextWidth(siplabel));
  const double contentX = secondMarginAtLeftEdge + column + marginLabelToContent;
  return {columnLabelAt(0, column, siplabel),
          columnLabelAt(labelTextSize(siplabel).height + kRowGap, column, pmrlabel),
          labelAt(contentX, 0, m_sipurl),
          labelAt(contentX, labelTextSize(m_sipurl).height + kRowGap, m_pmrurl)};
}

void MeetingSubView::onEditButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_actionDelegate->editMeetingNowSetting();
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_EditMeetingNowSettings);
}

// The clipboard reports no failure, so the text is read back.
bool MeetingSubView::putOnPasteboard(const QString& text) {
  QClipboard* pasteboard = QGuiApplication::clipboard();
  pasteboard->clear();
  pasteboard->setText(text);
  return pasteboard->text() == text;
}

void MeetingSubView::onCopyPmrurlButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (!putOnPasteboard(m_pmrurl)) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "set pmr url to pasteboard failed");
    return;
  }
  setCopiedUrlBtn(m_copyPmrurlBtn);
  QTimer::singleShot(kCopiedTime, this, &MeetingSubView::resetCopyPmrUrlBtn);
}

void MeetingSubView::onCopySipurlButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (!putOnPasteboard(m_sipurl)) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "set sip url to pasteboard failed");
    return;
  }
  setCopiedUrlBtn(m_copySipurlBtn);
  QTimer::singleShot(kCopiedTime, this, &MeetingSubView::resetCopySipUrlBtn);
}

// The width is measured in the title's font, and stays when the text is "Copy" again.
void MeetingSubView::setCopiedUrlBtn(BRNHyperlinkTextField* button) {
  const QString copied = localizedString("Copied");
  Frame frame = frameOf(button);
  frame.width = titleTextSize(copied).width + textPad;
  setFrame(button, frame);
  button->setStringValue(copied);
  announce(button, copied);
}

void MeetingSubView::resetCopyPmrUrlBtn() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_copyPmrurlBtn->setStringValue(localizedString("Copy"));
}
void MeetingSubView::resetCopySipUrlBtn() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_copySipurlBtn->setStringValue(localizedString("Copy"));
}
