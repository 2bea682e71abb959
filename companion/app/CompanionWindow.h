#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "companion/app/DemoUser.h"
#include "companion/services/CompanionServices.h"

class PluginHost;
class QLabel;
class QStackedWidget;
class QTabBar;
class QPushButton;
class QRadioButton;
class SiteDialog;

// The companion's own window: the user, buttons for the plug-in's commands, and a page for each service.
class CompanionWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit CompanionWindow(PluginHost* host);  // not owned; must outlive the window

  // Before anything is done in the window; once. Not owned; must outlive the window.
  void useServices(CompanionServices* services);

  // Triggers the commands that a host sends after a sign-in, or when it starts for a guest.
  void become(demouser::Variant variant);
  void showPreferences();
  void comeToFront();
  // The same for the present user, then shows the Preferences.
  void startOver();
  void showRecording(bool isRunning);
  void showNotice(const QString& text);
  // The page is made when it is first shown, so that it costs the start nothing; the window owns it. The
  // first page is in front. After useServices.
  using PageMaker = std::function<QWidget*()>;
  void addPage(const QString& title, const PageMaker& make);
  // Requests the site's data and uses that site from then on.
  void useSite(const QString& site);

 Q_SIGNALS:
  void recordingToggled();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* createContent();
  QWidget* createPages();
  QWidget* createHeader();
  QWidget* createSwitch();
  QWidget* createButtons();
  QPushButton* createButton(const QString& title, const std::function<void()>& action);

  void change(demouser::Variant variant);
  void showPage(int index);
  void showUpdate();
  void closePreferences();
  SiteDialog* openSiteDialog();
  void showIdentity();

  PluginHost* m_host;
  CompanionServices* m_services = nullptr;
  QRadioButton* m_signedIn = nullptr;
  QRadioButton* m_guest = nullptr;
  QTabBar* m_tabs = nullptr;
  QStackedWidget* m_pages = nullptr;
  QList<PageMaker> m_pageMakers;  // empty where the page is made
  QLabel* m_identity = nullptr;
  QLabel* m_notice = nullptr;
  QPushButton* m_updateButton = nullptr;
  QPushButton* m_recordButton = nullptr;
  QPointer<SiteDialog> m_siteDialog;
};
