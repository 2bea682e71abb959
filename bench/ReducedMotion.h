#pragma once

#include <QProxyStyle>
#include <QWidget>

// Lets the window switch its panes at once, as on a desktop with reduced motion.
inline void reduceMotion(QWidget* window) {
  class StillStyle final : public QProxyStyle {
   public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
      return hint == SH_Widget_Animate ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
  };
  auto* still = new StillStyle;
  still->setParent(window);
  window->setStyle(still);
}
