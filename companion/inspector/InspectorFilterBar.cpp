#include "companion/inspector/InspectorFilterBar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <vector>

namespace {

using Kind = InspectorEvent::Kind;

struct KindGroup {
  QString title;
  QString meaning;
  std::vector<Kind> kinds;
  bool isShown = true;
};

const std::vector<KindGroup>& kindGroups() {
  static const std::vector<KindGroup> groups = {
      {.title = QStringLiteral("Commands"),
       .meaning = QStringLiteral("What host and plug-in ask of each other"),
       .kinds = {Kind::CommandToPlugin, Kind::CommandToHost}},
      {.title = QStringLiteral("Notifications"),
       .meaning = QStringLiteral("What the host's services tell the plug-in, the personal room too"),
       .kinds = {Kind::Notification, Kind::PersonalRoom}},
      {.title = QStringLiteral("Sign-in"),
       .meaning = QStringLiteral("Challenges, their answers, and addresses that were opened"),
       .kinds = {Kind::Challenge, Kind::Answer, Kind::Address}},
      {.title = QStringLiteral("Warnings"),
       .meaning = QStringLiteral("The warning window"),
       .kinds = {Kind::Warning}},
      {.title = QStringLiteral("Store"),
       .meaning = QStringLiteral("Settings that were written, what changed in them, and keychain items"),
       .kinds = {Kind::StoreWrite, Kind::Keychain}},
      {.title = QStringLiteral("Telemetry"),
       .meaning = QStringLiteral("What is reported about the use of the window"),
       .kinds = {Kind::Telemetry}},
      // The border comes first; what happens inside drowns it.
      {.title = QStringLiteral("Traces"),
       .meaning = QStringLiteral("What the plug-in and the host library do inside"),
       .kinds = {Kind::Trace},
       .isShown = false}};
  return groups;
}

}  // namespace

InspectorFilterBar::InspectorFilterBar() {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  for (const KindGroup& group : kindGroups()) {
    auto* box = new QCheckBox(group.title);
    box->setToolTip(group.meaning);
    box->setChecked(group.isShown);
    connect(box, &QCheckBox::toggled, this, &InspectorFilterBar::changed);
    row->addWidget(box);
    m_boxes.append(box);
  }
  row->addStretch(1);
}

std::set<Kind> InspectorFilterBar::hiddenKinds() const {
  std::set<Kind> hidden;
  for (qsizetype at = 0; at < m_boxes.size(); ++at) {
    const std::vector<Kind>& kinds = kindGroups()[static_cast<size_t>(at)].kinds;
    if (!m_boxes.at(at)->isChecked()) hidden.insert(kinds.begin(), kinds.end());
  }
  return hidden;
}
