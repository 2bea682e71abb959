#include "KZPreference/layout/PreferenceTelemetry.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class TelemetryTest : public RecordingHost {};

TEST_F(TelemetryTest, EndsARecordAtTheFirstMissingValue) {
  PreferenceTelemetry& telemetry = PreferenceTelemetry::sharedInstance();
  const QString name = QStringLiteral("f");
  telemetry.writeFeatrueName(name);
  telemetry.writeFeatrueName(QString());
  telemetry.writeFeatrueName(name, "k", QVariant());
  telemetry.writeFeatrueName(QString(), "k", 1);
  telemetry.writeFeatrueName(name, "k", 1);
  const QString record = QStringLiteral(
      R"(23 {"TelemetryKey_MetricName":"TelemetryValue_MetricName_KZMetric","TelemetryKey_Values":)"
      R"({"TelemetryKey_ActionFrom":"TelemetryValue_ActionFrom_APP"%1}})");
  const QString named = QStringLiteral(R"(,"TelemetryKey_FeatureName":"f")");
  EXPECT_EQ(takeSent(), (QStringList{record.arg(named), record.arg(QString()), record.arg(named),
                                     record.arg(QString()), record.arg(named + R"(,"k":1)")}));
}

}  // namespace
