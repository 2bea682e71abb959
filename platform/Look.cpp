#include "platform/Look.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include "platform/LookStyle.h"
#include "platform/Text.h"

namespace {

// Keeps one window's palette in step with the application's.
class WindowDresser final : public QObject {
 public:
  explicit WindowDresser(QWidget* window) : QObject(window), m_window(window) {
    window->installEventFilter(this);
    dress();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange) dress();
    return false;
  }

 private:
  void dress() {
    const QPalette& palette = lookPalette(lookSchemeFor(QGuiApplication::palette()));
    if (m_isDressing || m_window->palette() == palette) return;
    m_isDressing = true;
    m_window->setPalette(palette);
    m_isDressing = false;
  }

  QWidget* m_window;
  bool m_isDressing = false;
};

}  // namespace

QStyle* lookStyle() {
  static QPointer<LookStyle> style;
  if (!style) {
    style = new LookStyle;
    style->setParent(qApp);
  }
  return style;
}

void dressWindow(QWidget* window) {
  window->setStyle(lookStyle());
  window->setFont(fontFor(FontRole::System, systemFontSize));
  new WindowDresser(window);
}
