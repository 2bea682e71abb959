#include "KZPreference/layout/Controls.h"

#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"
#include "platform/SecretText.h"

namespace {

// The toolkit's default would cut a text at 32,767 characters.
constexpr int kFieldCharacters = 1 << 24;

template <typename Control>
Control* addNamed(QWidget* view, const char* name, const Frame& frame, Control* control) {
  control->setObjectName(QLatin1String(name));
  addSubview(view, control, frame);
  return control;
}

}  // namespace

StaticText* addLabel(QWidget* view, const char* name, const Frame& frame, const QString& text,
                     Qt::Alignment alignment) {
  return addNamed(view, name, frame, new StaticText(text, FontRole::Label, labelFontSize, alignment));
}

StaticText* addTitle(QWidget* view, const char* name, const Frame& frame, const QString& text,
                     Qt::Alignment alignment) {
  auto* title = new StaticText(text, FontRole::BoldSystem, boldLabelFontSize, alignment);
  setAccessibleRole(title, QAccessible::Heading);
  return addNamed(view, name, frame, title);
}

QCheckBox* addCheckbox(QWidget* view, const char* name, const Frame& frame, const QString& title) {
  auto* checkbox = new QCheckBox(title);
  checkbox->setFont(fontFor(FontRole::System, systemFontSize));
  return addNamed(view, name, frame, checkbox);
}

PopUpButton* addPopUpButton(QWidget* view, const char* name, const Frame& frame, const QStringList& items) {
  auto* button = new PopUpButton(items);
  button->setFont(fontFor(FontRole::System, labelFontSize));
  return addNamed(view, name, frame, button);
}

BRNHyperlinkTextField* addLink(QWidget* view, const char* name, const Frame& frame, const QString& text) {
  auto* link = new BRNHyperlinkTextField;
  link->setFont(fontFor(FontRole::Label, labelFontSize));
  link->setUnderlineStyle(1);
  link->setNoClickColor(BRNHyperlinkTextField::NoClickColor::Blue);
  link->setStringValue(text);
  return addNamed(view, name, frame, link);
}

QLineEdit* addTextField(QWidget* view, const char* name, const Frame& frame, Echo echo) {
  auto* field = new QLineEdit;
  field->setFont(fontFor(FontRole::System, labelFontSize));
  field->setMaxLength(kFieldCharacters);
  if (echo == Echo::Secret) {
    maskSecretText();
    field->setEchoMode(QLineEdit::Password);
    field->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  }
  return addNamed(view, name, frame, field);
}
