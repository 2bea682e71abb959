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
class TokenRequests;

// The plug-in's principal object: dispatches the host's commands and notifications, owns the window
// controller and all it needs, and sends the plug-in's commands. Main thread only.
class KZPreference final : public KZPluginMgr, public PluginCommandSender {
 public:
  explicit KZPreference(KZPluginCoreMgr* core);
  ~KZPreference() override;

  // Numbers without a handler are ignored; both always return 0.
  quint64 onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) override;
  quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) override;

  quint64 sendPluginCommand(KZCommand command, const Content& content) override;

  // Legacy windows: preferences windows that a host implements. The plug-in creates none of them.

  // The meeting key in the content's host information, when that meeting has a window; null otherwise.
  QString hasHostInfo(const Dictionary& content) const;
  static QString getBrennOI(const Dictionary& content);
  static QString paserMeetingKey(const QString& xml);
  void releasePreferenceHostInfoWindowController(const QString& meetingKey);
  void releasePreferenceWindowController();
  void onHandleClosePreferenceWindow();
  void onHandleShowPreferenceWindow(const Dictionary& content, const QString& actionFrom);
  void showPreferenceWindow();
  void showPreferenceWindowWithData(const Dictionary& data);

 private:
  // Commands.
  void initGuestPreference();
  void showAppPreference(const Content& content);
  void destroyAppPreference();
  void onHandleCheckForUpdates(const QString& actionFrom);
  void onHandleCheckForUpdatesAutomatically();
  void onHandleJoinByNumber(const QString& actionFrom);
  void onChangeCalenderIntegrationRequiring(const Content& content);
  void onEnableProximityAutoDetect();
  void onGetExchonlineToken(const Content& content);

  // Notifications.
  void onGetPreferenceDone(const Content& content);
  void onCheckForUpdatesDone(const Content& content);
  void onRefreshPreferenceDone(const Content& content);
  void onResolveExchangeDone(const Content& content);
  void onO365LoginRequesting(const Content& content);
  void onExchangeResolvingNeedCredential(const Content& content);

  enum class UpdateCheck { ByUser, Automatic };
  void checkForUpdates(UpdateCheck kind, const char* method, const QString& actionFrom);
  void joinByNumber();

  void installWindowController(std::unique_ptr<PreferenceWindowController> controller);
  PreferenceWindowController& ensuredWindowController();

  static bool isActionFailed(const Dictionary& content);
  static Dictionary dictionaryFromJson(const QString& text);  // empty when it is no object
  void showErrorMessage(const Dictionary& content);
  void savePreferenceInfo(const Dictionary& record);
  void writeTelemetryData(const QString& featureName, const QString& actionFrom);

  // Destroyed in reverse order, so that each object is destroyed before those that it uses.
  std::unique_ptr<ADAuthenticationWrapper> m_ADAuthWrapper;
  std::unique_ptr<TokenRequests> m_tokenRequests;
  std::unique_ptr<PreferenceActionDelegate> m_preferenceActionDelegate;
  std::unique_ptr<OLAccountAuthenticator> m_olaccountAuthenticator;
  std::unique_ptr<PreferenceWindowController> m_preferenceWindowController;
  std::vector<QPointer<PreferenceWindowController>> m_retiredControllers;
  std::unique_ptr<KZWarningWindowController> myWarningWindowController;
  std::unique_ptr<PreferencesWndController> myWindowController;
  std::unordered_map<QString, std::unique_ptr<PreferencesWndController>> dictHostInfoWndController;
  Dictionary myDictPreferenceInfo;
};
