#include "KZPreference/layout/Controls.h"

#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/FrameLayout.h"

namespace {

// What is typed is passed on whole; the toolkit's own limit of 32,767 would cut it silently.
constexpr int kFieldCharacters = 1 << 24;

}  // namespace

StaticText* addStaticText(QWidget* view, const StaticTextSpec& spec) {
  auto* text = new StaticText(spec.text, spec.role, spec.size, spec.alignment);
  text->setObjectName(spec.name);
  addSubview(view, text, spec.frame);
  return text;
}

QCheckBox* addCheckbox(QWidget* view, const QString& name, const Frame& frame, const QString& title) {
  auto* checkbox = new QCheckBox(title);
  checkbox->setObjectName(name);
  checkbox->setFont(fontFor(FontRole::System, systemFontSize));
  addSubview(view, checkbox, frame);
  return checkbox;
}

PopUpButton* addPopUpButton(QWidget* view, const QString& name, const Frame& frame,
                            const QStringList& items) {
  auto* button = new PopUpButton(items);
  button->setObjectName(name);
  button->setFont(fontFor(FontRole::System, labelFontSize));
  addSubview(view, button, frame);
  return button;
}

BRNHyperlinkTextField* addLink(QWidget* view, const QString& name, const Frame& frame, const QString& text) {
  auto* link = new BRNHyperlinkTextField;
  link->setObjectName(name);
  link->setFont(fontFor(FontRole::Label, labelFontSize));
  link->setUnderlineStyle(1);
  link->setNoClickColor(BRNHyperlinkTextField::NoClickColor::Blue);
  link->setStringValue(text);
  addSubview(view, link, frame);
  return link;
}

QLineEdit* addTextField(QWidget* view, const QString& name, const Frame& frame, Echo echo) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setFont(fontFor(FontRole::System, labelFontSize));
  field->setMaxLength(kFieldCharacters);
  if (echo == Echo::Secret) {
    field->setEchoMode(QLineEdit::Password);
    field->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  }
  addSubview(view, field, frame);
  return field;
}
