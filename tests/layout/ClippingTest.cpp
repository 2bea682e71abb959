#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFontInfo>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QToolTip>

#include "KZPreference/layout/PrefsVisible.h"
#include "platform/FrameLayout.h"
#include "platform/StaticText.h"
#include "platform/View.h"
#include "tests/layout/PaintedTexts.h"
#include "tests/layout/PaneWalk.h"

namespace {

using Variant = PaneWalk::Variant;

// Outlines are known to a pixel on each side.
constexpr double kPixel = 2;

QString withoutSpaces(QString text) {
  return text.remove(u' ').remove(u'\n').remove(QChar(0xa0));
}

QString shownTextOf(const QWidget& view) {
  if (const auto* label = qobject_cast<const QLabel*>(&view)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&view)) return button->text();
  const auto* field = qobject_cast<const QLineEdit*>(&view);
  return field && field->text().isEmpty() ? field->placeholderText() : QString();
}

// The texts that a user must be able to read.
QStringList textsOf(const QWidget& root) {
  QStringList texts;
  const auto add = [&](const QWidget& view) {
    texts.append(shownTextOf(view));
    if (const auto* drawing = qobject_cast<const View*>(&view)) {
      for (const DrawnText& drawn : drawing->drawnTexts()) texts.append(drawn.text);
    }
  };
  add(root);
  for (const QWidget* view : root.findChildren<QWidget*>())
    if (view->isVisibleTo(&root)) add(*view);
  // Also those that a narrow toolbar leaves out.
  for (const QAction* item : root.actions()) texts.append(item->text());
  texts.removeAll(QString());
  return texts;
}

// Controls with an edge, in the view's coordinates.
QList<QRect> boxesIn(const QWidget& root) {
  QList<QRect> boxes;
  for (const QWidget* view : root.findChildren<QWidget*>()) {
    const bool hasEdge = qobject_cast<const QLineEdit*>(view) || qobject_cast<const QComboBox*>(view) ||
                         qobject_cast<const QPushButton*>(view);
    if (hasEdge && view->isVisibleTo(&root)) boxes.append(QRect(view->mapTo(&root, QPoint()), view->size()));
  }
  return boxes;
}

// What is wrong with the texts of the view; empty when nothing is.
QStringList faultsOf(QWidget& view) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const QList<PaintedText> painted = paintedTexts(view);
  const bool isMirrored = QGuiApplication::isRightToLeft();
  QStringList faults;
  QString all;
  std::optional<double> edge;
  for (const PaintedText& text : painted) {
    all += withoutSpaces(text.text);
    if (!text.clip.adjusted(-kPixel, -kPixel, kPixel, kPixel).contains(text.ink)) {
      faults.append("cut: " + text.text);
    }
    if (text.font.bold()) {
      const double at = isMirrored ? text.right : text.left;
      if (qAbs(at - edge.value_or(at)) > 0.5) faults.append("heading out of line: " + text.text);
      edge = at;
    }
    for (const QRect& box : boxesIn(view)) {
      if (QRectF(box).intersects(text.ink.adjusted(1, 1, -1, -1)) && !QRectF(box).contains(text.ink.center()))
        faults.append("under a control: " + text.text);
    }
    for (const PaintedText& other : painted) {
      if (&other > &text && other.ink.adjusted(1, 1, -1, -1).intersects(text.ink))
        faults.append(text.text + " overlaps " + other.text);
      const double step = qAbs(other.baseline - text.baseline);
      // In a larger font, frames as high as it and frames of a fixed height differ.
      const bool isUsual = text.font.pixelSize() == labelFontSize && other.font.pixelSize() == labelFontSize;
      if (isUsual && step > 0.5 && step < 5)
        faults.append(text.text + " is not on one line with " + other.text);
    }
  }
  for (const QString& text : textsOf(view))
    if (!all.contains(withoutSpaces(text))) faults.append("not whole: " + text);
  return faults;
}

const QString kLongRoom = QStringLiteral("https://meetings.brenn-example.com/organisation/department/team/") +
                          QStringLiteral("a-personal-room-with-a-very-long-name");

class Clipping : public testing::Test {
 protected:
  ~Clipping() override {
    setTextFont({});
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
  }

  static void expectWhole(QWidget& view, const char* state) {
    for (const QString& fault : faultsOf(view)) ADD_FAILURE() << state << ": " << qPrintable(fault);
  }

  PaneWalk panes;
};

constexpr const char* kLanguages[] = {"C", "de", "fr", "es", "ja", "zh_CN"};

const Addresses kAddresses[] = {{"none", {}, {}},
                                {"both", "https://brenn.example/meet/ann", "ann@brenn.example"},
                                {"long", kLongRoom, "ann@brenn.example"},
                                {"room", kLongRoom, {}},
                                {"video", {}, kLongRoom}};

constexpr double kLarge = 1.3;

const struct Setting {
  TextFont font;
  Qt::LayoutDirection direction = Qt::LeftToRight;
} kSettings[] = {{{}},
                 {{.family = "DejaVu Sans"}},
                 {{.enlargement = kLarge}},
                 {{}, Qt::RightToLeft},
                 {{.enlargement = kLarge}, Qt::RightToLeft}};

TEST_F(Clipping, EveryTextIsWholeInEveryLanguageAndFont) {
  for (const auto& [font, direction] : kSettings) {
    setTextFont(font);
    QGuiApplication::setLayoutDirection(direction);
    ASSERT_EQ(QFontInfo(fontFor(FontRole::Label, labelFontSize)).family(), font.family);
    for (const char* language : kLanguages) {
      QLocale::setDefault(QLocale(QLatin1String(language)));
      for (const Addresses& addresses : kAddresses) {
        for (const Variant variant : {Variant::SignedIn, Variant::Guest}) {
          if (variant == Variant::Guest && addresses.room.isNull() != addresses.video.isNull()) continue;
          SCOPED_TRACE(
              qPrintable(QStringLiteral("%1 x %2, %3, %4, %5, %6")
                             .arg(font.family)
                             .arg(font.enlargement)
                             .arg(direction == Qt::LeftToRight ? "left to right" : "mirrored")
                             .arg(QLatin1String(language), QLatin1String(addresses.name),
                                  QLatin1String(variant == Variant::Guest ? "guest" : "signed in"))));
          panes.walk(variant, addresses, expectWhole);
        }
      }
    }
  }
}

QString toolTipOf(QWidget* view) {
  QToolTip::hideText();
  QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), view->mapToGlobal(QPoint(1, 1)));
  QCoreApplication::sendEvent(view, &event);
  return QToolTip::text();
}

// A frame as wide as the text is measured suffices, wherever its edges are between two pixels.
TEST(StaticTextLayout, ElidesWhatIsWiderThanItsFrameAndShowsItInAToolTip) {
  const QString name = QStringLiteral("Ada <b>Byron</b>, Countess of Lovelace");
  const double measured = labelTextWidth(name);
  for (const double x : {0.0, 0.3, 0.49, 0.5, 0.7}) {
    for (const double spare : {-1.1, 0.0, 0.3, 0.5}) {
      QWidget parent;
      parent.resize(800, 40);
      auto* text = new StaticText(name, FontRole::Label, labelFontSize);
      addSubview(&parent, text, {x, 0, measured + spare, 22});
      const bool isWhole = spare >= 0;
      EXPECT_EQ(paintedTexts(*text).value(0).text == name, isWhole) << x << ", " << spare;
      EXPECT_EQ(toolTipOf(text), isWhole ? QString() : name.toHtmlEscaped()) << x << ", " << spare;
    }
  }
}

// A text of the host that is longer than the group is high ends in "…" in its last line.
TEST(StaticTextLayout, WrapsWithinItsSuperview) {
  QWidget parent;
  parent.resize(300, 100);
  auto* text = new StaticText(QString(QStringLiteral("word ")).repeated(20), FontRole::Label, labelFontSize);
  text->setWordWrap(true);
  addSubview(&parent, text, {20, 70, 200, 20});
  parent.show();
  const auto lines = [&] {
    QCoreApplication::sendPostedEvents(&parent, QEvent::LayoutRequest);
    return paintedTexts(*text).size();
  };
  EXPECT_EQ(lines(), 4);
  EXPECT_EQ(toolTipOf(text), QString());
  text->setText(text->text().repeated(10));
  EXPECT_EQ(lines(), 5);
  EXPECT_TRUE(paintedTexts(*text).last().text.endsWith(u'…'));
  EXPECT_EQ(toolTipOf(text), text->text());
}

}  // namespace
