#include "KZPreference/contract/PluginCommandSender.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class Sender final : public PluginCommandSender {
 public:
  quint64 sendPluginCommand(KZCommand, const Content& content) override {
    values = content->value(TelemetryKey_Values).toMap();
    return 0;
  }
  Dictionary values;
};

TEST(Telemetry, EndsARecordAtTheFirstMissingValue) {
  Sender sender;
  PreferenceTelemetry& telemetry = PreferenceTelemetry::sharedInstance();
  telemetry.writeFeatrueName("nobody hears");
  telemetry.setTelemetryDelegate(&sender);
  const Dictionary from{{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP}};
  Dictionary named = from;
  named.insert(TelemetryKey_FeatureName, "f");

  telemetry.writeFeatrueName("f");
  EXPECT_EQ(sender.values, named);
  telemetry.writeFeatrueName(QString());
  EXPECT_EQ(sender.values, from);
  telemetry.writeFeatrueName("f", "k", QVariant());
  EXPECT_EQ(sender.values, named);
  telemetry.writeFeatrueName(QString(), "k", 1);
  EXPECT_EQ(sender.values, from);
  named.insert("k", 1);
  telemetry.writeFeatrueName("f", "k", 1);
  EXPECT_EQ(sender.values, named);
  telemetry.setTelemetryDelegate(nullptr);
}

}  // namespace
