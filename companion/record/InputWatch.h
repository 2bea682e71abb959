#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>

#include "companion/format/LineWriter.h"
#include "companion/record/OtherWindowInput.h"
#include "companion/record/TypedText.h"
#include "companion/runtime/Application.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

// Turns what the user does in the plug-in's window into the steps that do it again. Needs an `Application`.
// Main thread only.
class InputWatch final : public QObject, private InputListener {
  Q_OBJECT

 public:
  using Step = QList<LineWriter::Member>;
  struct Handlers {
    std::function<void()> begun;  // before anything of it has an effect
    std::function<void()> ended;
    std::function<void(const Step& step)> step;  // before it has its effect, or else before what comes of it
    std::function<bool()> isPluginAtWork;
    std::function<void(const TypedText::Edit& edit)> typed;
    std::function<void(const QString& what)> unnamed;  // what no step can say
  };

  explicit InputWatch(Handlers handlers);
  ~InputWatch() override;

  // Tells what is only known when something comes of it: a text so far, a choice. Call before anything else
  // is recorded.
  void tellPending();

 private:
  bool inputBegins(QObject* receiver, QEvent* event) override;
  void inputEnded() override;

  void noteElsewhere(QWidget* target, const QEvent& event);
  void onWindowEvent(QWidget* target, QEvent* event);
  bool isActivation(const Window& window, QEvent::Type type);
  void onPress(QWidget* hit, Qt::KeyboardModifiers modifiers);
  void onRelease(QWidget* hit);
  void onKey(const QKeyEvent& key);
  void onListInput(PopUpButton* button, const QEvent& event);
  bool isForList() const;
  void followField(QWidget* widget, TypedText::Input input);
  void awaitChoice(PopUpButton* button);
  void tellChoice();
  void tell(const Step& step);

  Handlers m_handlers;
  TypedText m_typed;
  OtherWindowInput m_elsewhere;
  QPointer<Window> m_window;  // that the present input is for
  QPointer<QWidget> m_pressed;
  Step m_press;               // what it will have been when the button is released
  bool m_isPressing = false;  // the press is having its effect
  QPointer<PopUpButton> m_choosing;
  QString m_choosingName;
  QMetaObject::Connection m_choices;
  int m_listKey = 0;  // that the list of a pop-up has taken
  bool m_isFreshlyShown = false;
  int m_depth = 0;
};
