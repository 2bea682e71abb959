#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include "host/KZUIExtension/FlatImageButton.h"
#include "platform/PopUpButton.h"
#include "tests/layout/PaintedTexts.h"
#include "tests/layout/PaneWalk.h"
#include "tests/platform/look/HostPalettes.h"

namespace {

// A picture of a view, read in the view's points.
class Picture final {
 public:
  explicit Picture(QWidget& view) : m_image(view.grab().toImage()) {}

  QList<QColor> colorsIn(const QRectF& area) const {
    const double scale = m_image.devicePixelRatio();
    const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toRect() & m_image.rect();
    QList<QColor> colors;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
      for (int x = pixels.left(); x <= pixels.right(); ++x) colors.append(m_image.pixelColor(x, y));
    return colors;
  }

 private:
  QImage m_image;
};

QColor mostFrequent(const QList<QColor>& colors) {
  QHash<QRgb, int> counts;
  QRgb best = 0;
  for (const QColor& color : colors)
    if (++counts[color.rgb()] > counts.value(best)) best = color.rgb();
  return QColor::fromRgb(best);
}

double strongest(const QList<QColor>& colors, const QColor& ground) {
  double best = 1;
  for (const QColor& color : colors) best = std::max(best, contrast(color, ground));
  return best;
}

bool isChoice(const QWidget& control) {
  return qobject_cast<const QRadioButton*>(&control) || qobject_cast<const QCheckBox*>(&control);
}

// The part of a control that shows what it is: its edge, or its picture.
QRectF markOf(const QWidget& control, const QRectF& place) {
  if (isChoice(control)) return {place.left() + 1, place.center().y() - 7, 14, 14};
  if (qobject_cast<const FlatImageButton*>(&control)) {
    return {place.center().x() - 7.5, place.center().y() - 7.5, 15, 15};
  }
  if (const auto* item = qobject_cast<const QToolButton*>(&control); item && item->isChecked()) {
    return {place.left() + 12, place.bottom() - 2, 8, 0.5};  // the line below its label
  }
  const bool hasEdge = qobject_cast<const QLineEdit*>(&control) ||
                       qobject_cast<const PopUpButton*>(&control) ||
                       qobject_cast<const QPushButton*>(&control);
  return hasEdge ? place : QRectF();
}

struct Bounds {
  double text;
  double mark;
};

Bounds boundsIn(LookScheme scheme) {
  const bool isHigh = scheme == LookScheme::HighContrastLight || scheme == LookScheme::HighContrastDark;
  return isHigh ? Bounds{7, 4.5} : Bounds{4.5, 3};
}

class Contrast : public testing::TestWithParam<LookScheme> {
 protected:
  Contrast() { QApplication::setPalette(hostPalette(GetParam())); }
  ~Contrast() override { QApplication::setPalette(hostPalette(LookScheme::Light)); }

  // The text colour is the pen's: thin strokes are paler in a picture.
  static void checkTexts(QWidget& view, const char* state) {
    const Picture picture(view);
    for (const PaintedText& text : paintedTexts(view)) {
      const QWidget* control = view.childAt(text.ink.center().toPoint());
      if (control && !control->isEnabled()) continue;
      const QColor ground =
          mostFrequent(picture.colorsIn({text.ink.left() - 2, text.ink.top(), 1, text.ink.height()}));
      EXPECT_GE(contrast(text.color, ground), bounds.text) << state << ": " << qPrintable(text.text);
    }
  }

  void checkMarks(QWidget& view, const char* state) {
    const Picture picture(view);
    for (QWidget* control : view.findChildren<QWidget*>()) {
      const QRectF place(control->mapTo(&view, QPoint()), control->size());
      const QRectF mark = markOf(*control, place);
      if (mark.isNull() || !control->isVisibleTo(&view)) continue;
      const std::string name = std::string(state) + ": " + qPrintable(control->objectName()) +
                               (control->isEnabled() ? "" : ", disabled");
      const double middle = mark.center().y();
      const QColor ground = picture.colorsIn({mark.left() - 3, middle, 1, 1}).value(0);
      // The left edge, straight through in the middle.
      const double edge = strongest(picture.colorsIn({mark.left() - 0.5, middle, 3, 1}), ground);
      const QList<QColor> inside = picture.colorsIn(mark.adjusted(3, 3, -3, -3));
      const double glyph = strongest(inside, mostFrequent(inside));
      (control->isEnabled() ? m_enabled : m_disabled)
          .insert(control->objectName(), strongest(picture.colorsIn(mark), ground));
      if (!control->isEnabled()) continue;
      EXPECT_GE(edge, bounds.mark) << name;
      const bool hasGlyph = (isChoice(*control) && static_cast<QAbstractButton*>(control)->isChecked()) ||
                            qobject_cast<FlatImageButton*>(control) || qobject_cast<PopUpButton*>(control);
      EXPECT_GE(hasGlyph ? glyph : bounds.mark, bounds.mark) << name;
    }
  }

  // The focus changes more than a text cursor does, and what it changes stands out from what was there.
  static void checkFocus(QWidget& view, const char* state) {
    for (QWidget* control : view.findChildren<QWidget*>()) {
      if (!control->isVisibleTo(&view) || !control->isEnabled() || control->focusPolicy() == Qt::NoFocus)
        continue;
      if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
      const QList<QColor> before = Picture(*control).colorsIn(control->rect());
      QTest::keyClick(PreferenceHost::window(), Qt::Key_Tab);
      control->setFocus(Qt::TabFocusReason);
      if (auto* field = qobject_cast<QLineEdit*>(control)) field->deselect();
      const QList<QColor> after = Picture(*control).colorsIn(control->rect());
      qsizetype clear = 0;
      for (qsizetype at = 0; at < qMin(before.size(), after.size()); ++at)
        clear += contrast(before[at], after[at]) >= bounds.mark ? 1 : 0;
      EXPECT_GE(clear, 24 * view.devicePixelRatio())
          << state << ": focus on " << qPrintable(control->objectName());
    }
  }

  PaneWalk panes;
  static inline Bounds bounds;
  // By name, the strongest contrast in the control.
  QHash<QString, double> m_enabled;
  QHash<QString, double> m_disabled;
};

TEST_P(Contrast, TextsEdgesAndMarksStandOut) {
  bounds = boundsIn(GetParam());
  const Addresses addresses{"both", "https://brenn.example/meet/ann", "ann@brenn.example"};
  for (const PaneWalk::Variant variant : {PaneWalk::Variant::SignedIn, PaneWalk::Variant::Guest}) {
    panes.walk(variant, addresses, [&](QWidget& view, const char* state) {
      QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
      if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
      checkTexts(view, state);
      checkMarks(view, state);
      checkFocus(view, state);
    });
  }
  for (const char* name : {"m_emailInputTxt", "m_detectBtn", "m_applyBtn", "m_minutesBtn"})
    EXPECT_LT(m_disabled.value(name, 21), 0.6 * m_enabled.value(name)) << name;
}

INSTANTIATE_TEST_SUITE_P(Schemes, Contrast, testing::ValuesIn(allSchemes), [](const auto& scheme) {
  return QString(schemeName(scheme.param)).remove(u'-').toStdString();
});

}  // namespace
