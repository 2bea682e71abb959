#include "companion/session/ControlDescription.h"

#include <QCheckBox>
#include <QFont>
#include <QFontInfo>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <array>

#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "platform/PopUpButton.h"
#include "platform/Spinner.h"
#include "platform/StaticText.h"

namespace {

QString textColorOf(const QWidget& view) {
  return view.palette().color(view.foregroundRole()).name();
}

void describe(const QLabel& label, QJsonObject* description) {
  description->insert("text", label.text());
  description->insert("color", textColorOf(label));
  description->insert("font", describeFont(label.font()));
  description->insert("alignment", describeAlignment(label.alignment()));
}

void describe(const StaticText& label, QJsonObject* description) {
  if (label.systemColor() == SystemColor::Red) description->insert("color", "red");
  if (label.systemColor() == SystemColor::Blue) description->insert("color", "blue");
}

void describe(const QLineEdit& field, QJsonObject* description) {
  description->insert("text", field.text());
  description->insert("placeholder", field.placeholderText());
  description->insert("secure", field.echoMode() == QLineEdit::Password);
  description->insert("color", textColorOf(field));
  description->insert("font", describeFont(field.font()));
  description->insert("alignment", describeAlignment(field.alignment()));
}

void describeTitle(const QAbstractButton& button, QJsonObject* description) {
  description->insert("text", button.text());
  description->insert("font", describeFont(button.font()));
}

void describe(const QPushButton& button, QJsonObject* description) {
  describeTitle(button, description);
}

void describe(const QRadioButton& button, QJsonObject* description) {
  describeTitle(button, description);
  description->insert("state", button.isChecked() ? 1 : 0);
}

void describe(const QCheckBox& button, QJsonObject* description) {
  describeTitle(button, description);
  description->insert("state", button.isChecked() ? 1 : 0);
}

void describe(const BRNHyperlinkTextField& link, QJsonObject* description) {
  describeTitle(link, description);
  const bool isBlue = link.noClickColor() == BRNHyperlinkTextField::NoClickColor::Blue;
  description->insert("color", isBlue ? QStringLiteral("blue") : textColorOf(link));
}

void describe(const PopUpButton& button, QJsonObject* description) {
  QJsonArray items;
  for (int item = 0; item < button.count(); ++item) items.append(button.itemText(item));
  description->insert("text", button.title());
  description->insert("items", items);
  description->insert("font", describeFont(button.font()));
}

void describe(const FlatImageButton& button, QJsonObject* description) {
  const FlatImageButton::ImageNames& names = button.imageNames();
  description->insert("images", QJsonObject{{"normal", names.normal},
                                            {"hover", names.hover},
                                            {"pressed", names.pressed},
                                            {"focus", names.focus},
                                            {"disabled", names.disabled}});
}

void describe(const Spinner& spinner, QJsonObject* description) {
  description->insert("animating", spinner.isAnimating());
}

void describe(const MarigoldWarningView& notice, QJsonObject* description) {
  description->insert("text", notice.warningText());
}

template <typename Control>
void describeIf(const QWidget& view, QJsonObject* description) {
  if (const auto* control = qobject_cast<const Control*>(&view)) describe(*control, description);
}

// A class stands before the classes that refine what it says.
constexpr auto kDescribers = std::to_array<void (*)(const QWidget&, QJsonObject*)>({
    describeIf<QLabel>,
    describeIf<StaticText>,
    describeIf<QLineEdit>,
    describeIf<QPushButton>,
    describeIf<QRadioButton>,
    describeIf<QCheckBox>,
    describeIf<BRNHyperlinkTextField>,
    describeIf<PopUpButton>,
    describeIf<FlatImageButton>,
    describeIf<Spinner>,
    describeIf<MarigoldWarningView>,
});

}  // namespace

void describeControl(const QWidget& view, QJsonObject* description) {
  for (const auto describer : kDescribers) describer(view, description);
  if (!view.toolTip().isEmpty()) description->insert("toolTip", view.toolTip());
}

QJsonValue describeFont(const QFont& font) {
  const int pixels = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
  return QJsonObject{{"size", pixels}, {"bold", font.bold()}};
}

QString describeAlignment(Qt::Alignment alignment) {
  if (alignment.testFlag(Qt::AlignRight)) return QStringLiteral("right");
  if (alignment.testFlag(Qt::AlignHCenter)) return QStringLiteral("center");
  return QStringLiteral("left");
}
