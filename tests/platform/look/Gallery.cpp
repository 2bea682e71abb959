// look_gallery FOLDER: writes pictures of a window and of every control in every state, in all schemes, at
// the scale of QT_SCALE_FACTOR. For the eye; the tests beside it check what can be checked.

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <functional>

#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"
#include "platform/Look.h"
#include "platform/PopUpButton.h"
#include "platform/Spinner.h"
#include "platform/StaticText.h"
#include "platform/WindowController.h"
#include "tests/platform/look/HostPalettes.h"
#include "tests/platform/look/SampleToolbar.h"

namespace {

const FlatImageButton::ImageNames kDetectImages{.normal = QStringLiteral("btn_verify_default"),
                                                .hover = QStringLiteral("btn_verify_hover"),
                                                .pressed = QStringLiteral("btn_verify_pressed"),
                                                .focus = QStringLiteral("btn_verify_hover"),
                                                .disabled = QStringLiteral("btn_verify_disabled")};

FlatImageButton* detectButton() {
  auto* button = new FlatImageButton;
  button->setImageNames(kDetectImages, kSampleImages);
  return button;
}

BRNHyperlinkTextField* link(const QString& text) {
  auto* field = new BRNHyperlinkTextField;
  field->setUnderlineStyle(1);
  field->setNoClickColor(BRNHyperlinkTextField::NoClickColor::Blue);
  field->setStringValue(text);
  return field;
}

StaticText* label(const QString& text, FontRole role = FontRole::Label, double size = 13,
                  Qt::Alignment alignment = Qt::AlignLeft) {
  return new StaticText(text, role, size, alignment);
}

QLineEdit* field(const QString& text, const QString& placeholder) {
  auto* edit = new QLineEdit(text);
  edit->setPlaceholderText(placeholder);
  return edit;
}

QRadioButton* radio(const QString& text, bool isOn) {
  auto* button = new QRadioButton(text);
  button->setAutoExclusive(false);
  button->setChecked(isOn);
  return button;
}

QCheckBox* check(const QString& text, bool isOn) {
  auto* button = new QCheckBox(text);
  button->setChecked(isOn);
  return button;
}

void fillMeetingsPane(QWidget* pane) {
  const auto add = [pane](QWidget* view, const Frame& frame) { addSubview(pane, view, frame); };
  add(label("Meetings", FontRole::BoldSystem, 16), {32, 449, 76, 20});
  add(link("Edit"), {115, 448, 24, 16});
  add(label("Personal Room:", FontRole::Label, 13, Qt::AlignRight), {56, 420, 99, 16});
  add(label("https://brenn.mivra.example/meet/jo.doe"), {165, 420, 255, 16});
  add(link("Copy"), {426, 420, 34, 16});
  add(new SplitLineView, {24, 374, 452, 10});
  add(label("Calendar", FontRole::BoldSystem, 16), {32, 341, 100, 20});
  add(label("Number of days to show in meetings list:"), {60, 312, 254, 16});
  auto* days = new PopUpButton({"1", "7", "14", "30"});
  days->setTitle("14");
  add(days, {318, 310, 50, 22});
  add(new SplitLineView, {24, 288, 452, 10});
  add(label("Calendar integration", FontRole::BoldSystem, 16), {32, 255, 200, 20});
  add(radio("None", false), {60, 224, 300, 16});
  add(radio("Mivra", false), {60, 198, 300, 16});
  add(radio("Google", false), {60, 172, 300, 16});
  add(radio("Microsoft Outlook", true), {60, 146, 300, 16});
  add(field("jo.doe@example.com", ""), {80, 118, 260, 22});
  add(detectButton(), {318, 119, 21, 20});
  add(field("", "DOMAIN\\username or Email"), {80, 88, 260, 22});
  add(field("", "Password"), {80, 58, 260, 22});
  add(new QPushButton("Apply"), {271, 24, 75, 20});
  auto* spinner = new Spinner;
  spinner->startAnimation();
  add(spinner, {350, 28, 16, 16});
}

std::unique_ptr<Window> paneWindow() {
  auto window = std::make_unique<Window>();
  window->resize(500, 552);
  QToolBar* toolbar = sampleToolbar(window.get());
  toolbar->setGeometry(0, 0, 500, toolbar->sizeHint().height());
  auto* pane = new QWidget(window.get());
  pane->setGeometry(0, 60, 500, 492);
  fillMeetingsPane(pane);
  return window;
}

// The same control five times: plain, hovered, pressed, focused, disabled.
struct Exhibit {
  QSize size;
  std::function<QWidget*()> make;
};

const QList<Exhibit>& exhibits() {
  static const QList<Exhibit> all{
      {{110, 16}, [] { return radio("Outlook", false); }},
      {{110, 16}, [] { return radio("Outlook", true); }},
      {{110, 16}, [] { return check("Grüße gjpq", false); }},
      {{110, 16}, [] { return check("Grüße gjpq", true); }},
      {{75, 20}, [] { return new QPushButton("Apply"); }},
      {{75, 20},
       [] {
         auto* button = new QPushButton("OK");
         button->setDefault(true);
         return button;
       }},
      {{120, 22}, [] { return field("jo.doe@example", ""); }},
      {{110, 22}, [] { return field("", "Placeholder"); }},
      {{110, 22},
       [] {
         QLineEdit* plain = field("no ring", "");
         plain->setProperty("focusRing", false);
         return plain;
       }},
      {{50, 22},
       [] {
         auto* popUp = new PopUpButton({"7", "14"});
         popUp->setTitle("14");
         return popUp;
       }},
      {{21, 20}, [] { return detectButton(); }},
      {{48, 16}, [] { return link("Change"); }},
      {{10, 60},
       [] {
         auto* bar = new QScrollBar(Qt::Vertical);
         bar->setRange(0, 100);
         return bar;
       }},
  };
  return all;
}

void drawStates(const QString& file) {
  constexpr int kColumns = 5;
  Window window;
  window.resize(20 + 130 * kColumns, 520);
  QList<QWidget*> focused;
  int top = 56;
  for (const Exhibit& exhibit : exhibits()) {
    for (int column = 0; column < kColumns; ++column) {
      QWidget* control = exhibit.make();
      const double height = exhibit.size.height();
      addSubview(&window, control,
                 {20.0 + 130 * column, window.height() - top - height, double(exhibit.size.width()), height});
      if (column == 1) control->setAttribute(Qt::WA_UnderMouse);
      if (column == 2 && qobject_cast<QAbstractButton*>(control))
        qobject_cast<QAbstractButton*>(control)->setDown(true);
      if (column == 3) focused.append(control);
      if (column == 4) control->setEnabled(false);
    }
    top += exhibit.size.height() + 14;
  }
  auto* warning = label("Invalid email address");
  warning->setSystemColor(SystemColor::Red);
  addSubview(&window, warning, {20, 8, 140, 16});
  auto* notice = new MarigoldWarningView;
  notice->setWarningText("Your setting changes will take effect after you restart Microsoft Outlook.");
  notice->setParent(&window);
  window.show();
  window.setAttribute(Qt::WA_KeyboardFocusChange);
  window.activateWindow();
  QApplication::processEvents();
  QPixmap picture = window.grab();
  QPainter painter(&picture);
  for (QWidget* control : focused) {
    control->setFocus(Qt::TabFocusReason);
    painter.drawPixmap(control->geometry().topLeft(), window.grab(control->geometry()));
  }
  painter.end();
  picture.save(file);
}

void drawPopUpList(const QString& file) {
  const std::unique_ptr<Window> window = paneWindow();
  window->show();
  auto* popUp = window->findChild<PopUpButton*>();
  popUp->showPopup();
  popUp->view()->window()->grab().save(file);
  popUp->hidePopup();
}

void drawWarning(const QString& file) {
  KZWarningWindowController warning(nullptr);
  warning.showWithTitle(
      "Cannot apply the account",
      "The meeting service did not answer. Check the connection and try again in a minute.");
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowTitle() == "Cannot apply the account") window->grab().save(file);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
  const QString scale = qApp->devicePixelRatio() > 1 ? QStringLiteral("@2x") : QString();
  for (const LookScheme scheme : allSchemes) {
    QApplication::setPalette(hostPalette(scheme));
    const auto file = [&](const char* page) {
      return folder.filePath(
          QStringLiteral("%1-%2%3.png").arg(QLatin1String(page), schemeName(scheme), scale));
    };
    const std::unique_ptr<Window> window = paneWindow();
    window->show();
    window->grab().save(file("window"));
    drawStates(file("states"));
    drawPopUpList(file("list"));
    drawWarning(file("warning"));
  }
  return 0;
}
