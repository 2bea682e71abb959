#pragma once

#include <QPointer>
#include <QString>
#include <memory>
#include <unordered_map>
#include <vector>

#include "KZPreference/contract/PluginCommandSender.h"
#include "host/KZFoundation/KZPluginMgr.h"
#include "host/KZFoundation/PreferencesWndController.h"

class ADAuthenticationWrapper;
class KZWarningWindowController;
class OLAccountAuthenticator;
class PreferenceActionDelegate;
class PreferenceWindowController;

// The plug-in's principal object: dispatches the host's commands and notifications, owns the window's
// controller and everything behind it, and sends the plug-in's commands. Main thread only.
class KZPreference final : public KZPluginMgr, public PluginCommandSender {
 public:
  explicit KZPreference(KZPluginCoreMgr* core);
  ~KZPreference() override;

  // Unknown numbers are dropped; both always answer 0.
  quint64 onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) override;
  quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) override;

  quint64 sendPluginCommand(KZCommand command, const Content& content) override;

  // The meeting that a content's host information names, when it has a window here; null otherwise.
  QString hasHostInfo(const Dictionary& content) const;
  static QString getBrennOI(const Dictionary& content);
  static QString paserMeetingKey(const QString& xml);

  // The host's own windows, from before this plug-in had one.
  void releasePreferenceHostInfoWindowController(const QString& meetingKey);
  void releasePreferenceWindowController();
  void onHandleClosePreferenceWindow();
  void onHandleShowPreferenceWindow(const Dictionary& content, const QString& actionFrom);

  void showPreferenceWindow();
  void showPreferenceWindowWithData(const Dictionary& data);

 private:
  struct Request {
    Content content;
    QString actionFrom;

    Dictionary dictionary() const { return content.value_or(Dictionary()); }
  };
  struct CommandHandler {
    KZCommand number;
    void (KZPreference::*handle)(const Request& request);
  };
  struct NotifyHandler {
    KZNotify index;
    void (KZPreference::*handle)(const Dictionary& content);
  };
  struct HandlerTables;
  friend struct HandlerTables;

  // Commands.
  void initGuestPreference(const Request& request);
  void showAppPreference(const Request& request);
  void destroyAppPreference(const Request& request);
  void onHandleCheckForUpdates(const Request& request);
  void onHandleCheckForUpdatesAutomatically(const Request& request);
  void onHandleJoinByNumber(const Request& request);
  void onChangeCalenderIntegrationRequiring(const Request& request);
  void onProximityCommand(const Request& request);
  void onGetExchonlineToken(const Request& request);

  // Notifications.
  void onGetPreferenceDone(const Dictionary& content);
  void onCheckForUpdatesDone(const Dictionary& content);
  void onRefreshPreferenceDone(const Dictionary& content);
  void onResolveExchangeDone(const Dictionary& content);
  void onO365LoginRequesting(const Dictionary& content);
  void onExchangeResolvingNeedCredential(const Dictionary& content);

  enum class UpdateCheck { ByUser, Automatic };
  void checkForUpdates(UpdateCheck kind, const char* method, const QString& actionFrom);
  void joinByNumber();
  void onEnableProximityAutoDetect();

  void showPreferences(const Dictionary& content);
  void installWindowController(std::unique_ptr<PreferenceWindowController> controller);
  PreferenceWindowController& ensuredWindowController();

  static bool isActionFailed(const Dictionary& content);
  void showErrorMessage(const Dictionary& content);
  void savePreferenceInfo(const Dictionary& record);
  void writeTelemetryData(const QString& featureName, const QString& actionFrom);

  // Destroyed from the last to the first: what is used by others stands before them.
  std::unique_ptr<ADAuthenticationWrapper> m_ADAuthWrapper;
  std::unique_ptr<PreferenceActionDelegate> m_preferenceActionDelegate;
  std::unique_ptr<OLAccountAuthenticator> m_olaccountAuthenticator;
  std::unique_ptr<PreferenceWindowController> m_preferenceWindowController;
  std::vector<QPointer<PreferenceWindowController>> m_retiredControllers;
  std::unique_ptr<KZWarningWindowController> myWarningWindowController;
  std::unique_ptr<PreferencesWndController> myWindowController;
  std::unordered_map<QString, std::unique_ptr<PreferencesWndController>> dictHostInfoWndController;
  Dictionary myDictPreferenceInfo;
};
