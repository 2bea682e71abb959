#include "companion/app/CompanionWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <utility>

#include "companion/app/FaultNotice.h"
#include "companion/app/Rows.h"
#include "companion/app/SiteDialog.h"
#include "companion/runtime/FlowLayout.h"
#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/Accessible.h"
#include "platform/Text.h"

namespace {

constexpr int kMargin = 20;
constexpr double kTitleSize = 16;

double fontScale() {
  return QFontInfo(QApplication::font()).pixelSize() / systemFontSize;
}

Dictionary fromApplication() {
  return {{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP}};
}

}  // namespace

CompanionWindow::CompanionWindow(PluginHost* host) : m_host(host) {
  setWindowTitle(QStringLiteral("Brenn Mivra Meetings – Companion"));
  // Smaller screens have room for it with the frame.
  resize((QSize(900, 560) * fontScale()).boundedTo(screen()->availableSize() - QSize(20, 60)));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 12);
  column->setSpacing(8);
  column->addWidget(createContent(), 1);
  m_notice = new QLabel;
  m_notice->setWordWrap(true);
  m_notice->setTextFormat(Qt::PlainText);
  m_notice->setContentsMargins(kMargin, 0, kMargin, 0);
  column->addWidget(m_notice);
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, &QWidget::close);
  // In the Preferences window too.
  auto* quit = new QShortcut(Qt::CTRL | Qt::Key_Q, this);
  quit->setContext(Qt::ApplicationShortcut);
  connect(quit, &QShortcut::activated, this, &QWidget::close);
  // The guest's pane changes the identity.
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
          &CompanionWindow::showIdentity);
}

void CompanionWindow::useServices(CompanionServices* services) {
  m_services = services;
  connect(&services->updates(), &UpdateService::offerChanged, this, &CompanionWindow::showUpdate);
  connect(&services->site(), &SiteService::siteWanted, this, &CompanionWindow::openSiteDialog);
}

// Scrolls where the window is too small for all of it.
QWidget* CompanionWindow::createContent() {
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(kMargin, 16, kMargin, 4);
  column->setSpacing(14);
  column->addWidget(createHeader());
  column->addWidget(createButtons());
  column->addWidget(createFaultNotice(this));
  column->addWidget(createPages(), 1);
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(content);
  return area;
}

QWidget* CompanionWindow::createHeader() {
  auto* header = new QWidget;
  QHBoxLayout* row = addRow(header, 12);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(2);
  auto* title = new QLabel(QStringLiteral("Brenn Mivra Meetings"));
  title->setFont(fontFor(FontRole::BoldSystem, kTitleSize * fontScale()));
  m_identity = new QLabel;
  m_identity->setWordWrap(true);
  texts->addWidget(title);
  texts->addWidget(m_identity);
  row->addLayout(texts, 1);
  row->addWidget(createSwitch());
  return header;
}

QWidget* CompanionWindow::createPages() {
  auto* box = new QWidget;
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(10);
  m_tabs = new QTabBar;
  m_tabs->setExpanding(false);
  m_tabs->setDrawBase(false);
  m_pages = new QStackedWidget;
  column->addWidget(m_tabs);
  column->addWidget(m_pages, 1);
  connect(m_tabs, &QTabBar::currentChanged, this, &CompanionWindow::showPage);
  return box;
}

void CompanionWindow::addPage(const QString& title, const PageMaker& make) {
  auto* place = new QWidget;
  auto* column = new QVBoxLayout(place);
  column->setContentsMargins(0, 0, 0, 0);
  m_pages->addWidget(place);
  m_pageMakers.append(make);
  m_tabs->addTab(title);
  m_tabs->updateGeometry();  // which it does not do itself while it is hidden
}

void CompanionWindow::showPage(int index) {
  const PageMaker make = std::exchange(m_pageMakers[index], {});
  if (make) m_pages->widget(index)->layout()->addWidget(make());
  const bool isOther = m_pages->currentIndex() != index;
  m_pages->setCurrentIndex(index);
  // A letter with Alt changes the page without the tab bar, which would tell it.
  if (isOther && !m_tabs->hasFocus()) announce(m_tabs, m_tabs->tabText(index).remove(u'&'));
}

QWidget* CompanionWindow::createSwitch() {
  auto* box = new QWidget;
  QHBoxLayout* row = addRow(box, 16);
  m_signedIn = new QRadioButton(companionText("&Signed in"));
  m_guest = new QRadioButton(companionText("&Guest"));
  row->addWidget(m_signedIn);
  row->addWidget(m_guest);
  connect(m_signedIn, &QRadioButton::clicked, this, [this] { change(demouser::Variant::SignedIn); });
  connect(m_guest, &QRadioButton::clicked, this, [this] { change(demouser::Variant::Guest); });
  return box;
}

QWidget* CompanionWindow::createButtons() {
  auto* bar = new QWidget;
  auto* row = new FlowLayout(bar, 8, 8);
  auto* preferences = createButton(companionText("&Preferences"), [this] { showPreferences(); });
  preferences->setDefault(true);
  row->addWidget(preferences);
  row->addWidget(createButton(companionText("&Account"), [this] {
    m_host->trigger(KZCommand::KZCmdShowPreference, Dictionary{{kOpenPrefsViewType, kPrefsAccountView}});
  }));
  row->addWidget(
      createButton(companionText("Check for &updates"), [this] { m_services->updates().check(); }));
  m_updateButton = createButton(QString(), [this] { m_services->updates().openPage(); });
  m_updateButton->setToolTip(companionText("Opens its page in the browser"));
  m_updateButton->hide();
  row->addWidget(m_updateButton);
  row->addWidget(createButton(companionText("&Join by number"),
                              [this] { m_host->trigger(KZCommand::KZCmdJoinByNumber, fromApplication()); }));
  row->addWidget(createButton(companionText("&Close Preferences"), [this] { closePreferences(); }));
  m_recordButton = createButton(companionText("&Record"), [this] { Q_EMIT recordingToggled(); });
  m_recordButton->setToolTip(companionText("Writes what happens to a file, for a report"));
  row->addWidget(m_recordButton);
  return bar;
}

QPushButton* CompanionWindow::createButton(const QString& title, const std::function<void()>& action) {
  QPushButton* button = ::createButton(title);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

// What was told last is the other user's.
void CompanionWindow::change(demouser::Variant variant) {
  showNotice({});
  become(variant);
}

void CompanionWindow::become(demouser::Variant variant) {
  const bool isGuest = variant == demouser::Variant::Guest;
  (isGuest ? m_guest : m_signedIn)->setChecked(true);
  demouser::become(variant);
  showIdentity();
  if (isGuest) {
    m_services->site().signOut();
    return m_host->trigger(KZCommand::KZCmdInitGuestPreference);
  }
  m_host->trigger(KZCommand::KZCmdDestroyPreference);
  m_services->site().signIn();
}

void CompanionWindow::showPreferences() {
  m_host->trigger(KZCommand::KZCmdShowPreference, fromApplication());
}

void CompanionWindow::startOver() {
  become(m_guest->isChecked() ? demouser::Variant::Guest : demouser::Variant::SignedIn);
  showPreferences();
}

void CompanionWindow::showRecording(bool isRunning) {
  m_recordButton->setText(isRunning ? companionText("Stop &recording") : companionText("&Record"));
}

void CompanionWindow::comeToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void CompanionWindow::showUpdate() {
  const QString version = m_services->updates().offeredVersion();
  m_updateButton->setText(companionText("Get &version %1").arg(version));
  m_updateButton->setVisible(!version.isEmpty());
}

void CompanionWindow::closePreferences() {
  m_host->trigger(KZCommand::KZCmdDestroyPreference);
  // The plug-in has forgotten that the user is a guest.
  if (m_guest->isChecked()) m_host->trigger(KZCommand::KZCmdInitGuestPreference);
}

SiteDialog* CompanionWindow::openSiteDialog() {
  if (!m_siteDialog) m_siteDialog = new SiteDialog(&m_services->site(), this);
  m_siteDialog->show();
  m_siteDialog->raise();
  m_siteDialog->activateWindow();
  return m_siteDialog;
}

void CompanionWindow::useSite(const QString& site) {
  openSiteDialog()->ask(site);
}

void CompanionWindow::showNotice(const QString& text) {
  m_notice->setText(text);
  announce(m_notice, text);
}

void CompanionWindow::showIdentity() {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  m_identity->setText(QStringLiteral("%1 · %2").arg(store.displayName(), store.userName()));
}

void CompanionWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  // The Preferences window alone does not keep a host running.
  if (event->isAccepted()) QApplication::quit();
}
