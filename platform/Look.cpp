#include "platform/Look.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include "platform/LookStyle.h"
#include "platform/Text.h"

namespace {

// Keeps one window's palette in step with the application's.
class PaletteFollower final : public QObject {
 public:
  explicit PaletteFollower(QWidget* window) : QObject(window), m_window(window) {
    window->installEventFilter(this);
    update();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange) update();
    return false;
  }

 private:
  void update() {
    const QPalette& palette = lookPalette(lookSchemeFor(QGuiApplication::palette()));
    if (m_isUpdating || m_window->palette() == palette) return;
    m_isUpdating = true;
    m_window->setPalette(palette);
    m_isUpdating = false;
  }

  QWidget* m_window;
  bool m_isUpdating = false;
};

// Setting a style is slow even when it changes nothing.
void setOneStyle(QWidget* view) {
  if (view->style() != lookStyle()) view->setStyle(lookStyle());
}

}  // namespace

QStyle* lookStyle() {
  static QPointer<LookStyle> style;
  if (!style) {
    style = new LookStyle;
    style->setParent(qApp);
  }
  return style;
}

void setLookStyle(QWidget* view) {
  setOneStyle(view);
  for (QWidget* part : view->findChildren<QWidget*>()) setOneStyle(part);
}

void setWindowLook(QWidget* window) {
  setLookStyle(window);
  window->setFont(fontFor(FontRole::System, systemFontSize));
  new PaletteFollower(window);
}
