#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

// Gathers what the user types into one field. Its text is told as a whole, once something else follows or
// something comes out of it. Main thread only.
class TypedText final : public QObject {
  Q_OBJECT

 public:
  struct Edit {
    QString field;
    QString text;
    bool isSecret;
  };
  enum class Input { MayEdit, EditsNothing };
  using Listener = std::function<void(const Edit& edit)>;

  explicit TypedText(Listener listener) : m_listener(std::move(listener)) {}

  // The user's input is about to reach the field of that name. What was typed into another one is told first.
  void inputBegins(QLineEdit* field, const QString& name, Input input);
  void inputEnded() { m_input = Input::EditsNothing; }

  // Tells what has been typed and was not told yet.
  void tell();

 private:
  void onEdited(const QString& text);

  Listener m_listener;
  QPointer<QLineEdit> m_field;
  QString m_name;
  QString m_known;  // what the field holds for whoever heard what was told
  QString m_typed;
  bool m_isUntold = false;
  Input m_input = Input::EditsNothing;
  QMetaObject::Connection m_edits;
};
