#include "tests/kit/Input.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QToolButton>
#include <QWindow>

namespace kit {

bool waitUntil(const std::function<bool()>& isTrue, int milliseconds) {
  return QTest::qWaitFor(isTrue, milliseconds);
}

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void click(QWidget& control, Qt::KeyboardModifiers modifiers) {
  QWidget* const window = control.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, modifiers,
                    control.mapTo(window, control.rect().center()));
}

void clickItem(QWidget& window, const QString& label, Qt::KeyboardModifiers modifiers) {
  for (QToolButton* item : window.findChildren<QToolButton*>()) {
    if (item->text() == label) return click(*item, modifiers);
  }
  qFatal("no item is called %s", qPrintable(label));
}

void type(QWidget& field, const QString& text) {
  field.setFocus();
  QTest::keySequence(&field, QKeySequence::SelectAll);
  if (text.isEmpty()) return QTest::keyClick(&field, Qt::Key_Delete);
  QTest::keyClicks(&field, text);
}

QWidget* findUsable(const QWidget& window, const char* name) {
  QWidget* found = nullptr;
  const auto isUsable = [&] {
    for (QWidget* control : window.findChildren<QWidget*>(QLatin1String(name))) {
      if (control->isVisible() && control->isEnabled()) found = control;
    }
    return found != nullptr;
  };
  EXPECT_TRUE(waitUntil(isUsable)) << name;
  return found;
}

}  // namespace kit
