#include "tests/companion/fakeplugin/FakeWindow.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>

#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/PopUpButton.h"
#include "platform/Spinner.h"
#include "platform/StaticText.h"
#include "platform/ViewAnimation.h"

namespace {

constexpr quint64 kHappened = 23;

template <typename Control>
Control* addNamed(QWidget* parent, Control* control, const char* name, const Frame& frame) {
  control->setObjectName(QLatin1String(name));
  addSubview(parent, control, frame);
  return control;
}

bool isShiftHeld() {
  return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
}

}  // namespace

FakePane::FakePane(const Frame& frame, FakeSender sender) : View(frame), m_send(std::move(sender)) {
  addFields();
  addButtons();
  addGroups();
}

void FakePane::addFields() {
  auto* field = addNamed(this, new QLineEdit(QStringLiteral("old")), "m_field", {20, 560.25, 200, 22});
  field->setPlaceholderText(QStringLiteral("Email"));
  connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
    m_send(kHappened, Dictionary{{"typed", text}});
  });
  connect(field, &QLineEdit::returnPressed, this, [this] {
    m_send(kHappened, Dictionary{{"returned", true}});
  });
  addNamed(this, new QLineEdit, "m_secret", {20, 530, 200, 22})->setEchoMode(QLineEdit::Password);
  setNextKeyView(field, findChild<QWidget*>(QStringLiteral("m_secret")));
  auto* label = addNamed(this, new StaticText(QStringLiteral("Wrong"), FontRole::Label, 13, Qt::AlignRight),
                         "m_label", {240, 530, 100, 16});
  label->setSystemColor(SystemColor::Red);
}

void FakePane::addButtons() {
  auto* box = addNamed(this, new QCheckBox(QStringLiteral("Box")), "m_box", {20, 500, 200, 16});
  connect(box, &QCheckBox::clicked, this, [this](bool isOn) {
    m_send(4, Dictionary{{"on", isOn}, {"shift", isShiftHeld()}});
  });
  auto* popUp =
      addNamed(this, new PopUpButton({QStringLiteral("5"), QStringLiteral("10"), QStringLiteral("15")}),
               "m_popup", {20, 470, 60, 20});
  popUp->setTitle(QStringLiteral("7"));
  connect(popUp, &PopUpButton::chosen, this, [this](const QString& title) {
    m_send(19, Dictionary{{"title", title}});
  });
  addNamed(this, new QPushButton(QStringLiteral("Hidden")), "m_hidden", {20, 440, 80, 20})->hide();
  addNamed(this, new QPushButton(QStringLiteral("Off")), "m_off", {20, 410, 80, 20})->setEnabled(false);
  addNamed(this, new QPushButton(QStringLiteral("Below")), "m_covered", {20, 380, 80, 20});
  addNamed(this, new QWidget, "m_cover", {10, 370, 100, 40});
  addNamed(this, new BRNHyperlinkTextField, "m_link", {120, 380, 80, 16})
      ->setNoClickColor(BRNHyperlinkTextField::NoClickColor::Blue);
  addNamed(this, new Spinner, "m_spinner", {220, 380, 16, 16})->startAnimation();
  auto* far = addNamed(this, new QPushButton(QStringLiteral("Far")), "m_far", {20, 10, 80, 20});
  connect(far, &QPushButton::clicked, this, [this] { m_send(kHappened, Dictionary{{"clicked", "far"}}); });
}

void FakePane::addGroups() {
  for (const char* name : {"GroupA", "GroupB"}) {
    auto* group = addNamed(this, new QWidget, name, {20, name[5] == 'A' ? 300.0 : 330.0, 200, 20});
    auto* same = addNamed(group, new QRadioButton(QStringLiteral("Same")), "m_same", {0, 0, 100, 16});
    connect(same, &QRadioButton::clicked, this, [this, name] {
      m_send(kHappened, Dictionary{{"clicked", QLatin1String(name)}});
    });
  }
}

QList<DrawnText> FakePane::drawnTexts() const {
  return {{QStringLiteral("Drawn"), {20, 590.5, 120, 16}, FontRole::BoldSystem, 16, Qt::AlignHCenter}};
}

FakeWindowController::FakeWindowController(FakeSender sender) : m_send(std::move(sender)) {
  auto* window = new Window;
  setWindow(window);
  window->setWindowTitle(QStringLiteral("Fake preferences"));
  auto* column = new QVBoxLayout(window);
  auto* toolBar = new QToolBar;
  column->addWidget(toolBar);
  auto* group = new QActionGroup(toolBar);
  for (const char* label : {"Allgemein", "Konto", "Treffen", "Hinweise", "Geräte"})
    addPane(toolBar, QString::fromUtf8(label));
  for (QAction* item : toolBar->actions()) group->addAction(item);
  toolBar->actions().first()->setChecked(true);
  auto* area = new QScrollArea;
  auto* content = new QWidget;
  content->setObjectName(QStringLiteral("contentSubview"));
  content->resize(400, 620);
  area->setWidget(content);
  column->addWidget(area);
  addNamed(content, new FakePane({0, 0, 400, 620}, m_send), "m_generalView", {0, 0, 400, 620});
  window->resize(440, 400);
  new ViewAnimation(this);
}

void FakeWindowController::addPane(QToolBar* toolBar, const QString& label) {
  QAction* item = toolBar->addAction(label);
  item->setCheckable(true);
  connect(item, &QAction::triggered, this, [this, label] {
    m_send(kHappened, Dictionary{{"pane", label}, {"shift", isShiftHeld()}});
  });
}

void FakeWindowController::windowDidBecomeKey() {
  m_send(kHappened, Dictionary{{"key", true}});
}
void FakeWindowController::windowWillClose() {
  m_send(kHappened, Dictionary{{"closing", true}});
}

void FakeWindowController::keyDown(QKeyEvent* event) {
  if (event->text().isEmpty() || event->key() == Qt::Key_Return) return;
  m_send(kHappened, Dictionary{{"key", event->key()}, {"modifiers", static_cast<int>(event->modifiers())}});
}
