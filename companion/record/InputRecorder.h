#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>

#include "companion/record/RecordWriter.h"
#include "companion/runtime/Application.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

// Writes what the user does in the plug-in's window as the steps that do it again. A text, a click or a
// choice is pending until it is complete. Needs an `Application`. Main thread only.
class InputRecorder final : public QObject, private InputListener {
  Q_OBJECT

 public:
  struct Handlers {
    std::function<void()> begun;  // before an input has an effect
    std::function<void()> ended;
    std::function<bool()> isPluginAtWork;
  };

  // The writer is not owned and must outlive this.
  InputRecorder(RecordWriter* writer, Handlers handlers);
  ~InputRecorder() override;

  // Writes what is pending. Call it before anything else is recorded, which may be an effect of it.
  void flush();

 private:
  bool inputBegins(QObject* receiver, QEvent* event) override;
  void inputEnded() override;

  bool isUsersDoing(const QEvent& event, const QWidget& receiver, const Window& window);
  void onInput(QWidget* target, QEvent* event);
  void onListInput(QWidget* list, const QEvent& event);
  void onPress(QWidget* hit, Qt::KeyboardModifiers modifiers);
  void onRelease(QWidget* hit);
  void onKey(const QKeyEvent& key);
  void expectTyping(QWidget* widget);
  void readTypedText();
  void expectChoice(PopUpButton* button);
  void writeChoice();
  void write(const Line& step);
  void writeUnnamed(const QString& what);

  RecordWriter* m_writer;
  const Handlers m_handlers;
  QPointer<Window> m_window;  // that the present input is for
  int m_depth = 0;            // inputs nest
  bool m_isFreshlyShown = false;

  QPointer<QLineEdit> m_field;  // that was typed into last
  QString m_fieldName;
  QString m_textBefore;
  std::optional<QString> m_typedText;  // pending
  bool m_mayBeTyping = false;          // the present input may change the field's text

  QPointer<QWidget> m_pressed;
  Line m_click;  // pending until the button is released

  QPointer<PopUpButton> m_choosing;  // the present input may choose
  QString m_choosingName;
  QString m_titleBefore;
  int m_listKey = 0;  // that the list of a pop-up has taken
};
