#include "companion/record/TypedText.h"

void TypedText::inputBegins(QLineEdit* field, const QString& name, Input input) {
  if (field != m_field || name != m_name) {
    tell();
    disconnect(m_edits);
    m_field = field;
    m_name = name;
    m_edits = connect(field, &QLineEdit::textEdited, this, &TypedText::onEdited);
  }
  if (!m_isUntold) m_known = field->text();
  m_input = input;
}

void TypedText::onEdited(const QString& text) {
  if (text == m_known && !m_isUntold) return;
  m_typed = text;
  m_isUntold = true;
}

void TypedText::tell() {
  // The field's owner may hear of an edit before we do.
  if (m_input == Input::MayEdit && m_field) onEdited(m_field->text());
  if (!m_isUntold) return;
  m_isUntold = false;
  m_known = m_typed;
  const bool isSecret = !m_field || m_field->echoMode() != QLineEdit::Normal;
  m_listener({m_name, m_typed, isSecret});
}
