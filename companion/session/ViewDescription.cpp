#include "companion/session/ViewDescription.h"

#include <QAction>
#include <QCheckBox>
#include <QFontInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>

#include "companion/format/ControlFinder.h"
#include "companion/format/ValueCodec.h"
#include "companion/runtime/PreferencesWindow.h"
#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/PopUpButton.h"
#include "platform/Spinner.h"
#include "platform/StaticText.h"
#include "platform/View.h"
#include "platform/ViewAnimation.h"
#include "platform/WindowController.h"

namespace {

QJsonArray describeFrame(const Frame& frame) {
  return {frame.x, frame.y, frame.width, frame.height};
}

QJsonObject describeFont(const QFont& font) {
  const int pixels = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
  return {{"size", pixels}, {"bold", font.bold()}};
}

QString describeAlignment(Qt::Alignment alignment) {
  if (alignment.testFlag(Qt::AlignRight)) return QStringLiteral("right");
  return alignment.testFlag(Qt::AlignHCenter) ? QStringLiteral("center") : QStringLiteral("left");
}

QString textColorOf(const QWidget& view) {
  return view.palette().color(view.foregroundRole()).name();
}

void insertText(const auto& control, QJsonObject* description) {
  description->insert("text", control.text());
  description->insert("font", describeFont(control.font()));
}

void describe(const QLabel& label, QJsonObject* description) {
  insertText(label, description);
  description->insert("color", textColorOf(label));
  description->insert("alignment", describeAlignment(label.alignment()));
}

void describe(const StaticText& label, QJsonObject* description) {
  if (label.systemColor() == SystemColor::Red) description->insert("color", "red");
  if (label.systemColor() == SystemColor::Blue) description->insert("color", "blue");
}

void describe(const QLineEdit& field, QJsonObject* description) {
  insertText(field, description);
  description->insert("placeholder", field.placeholderText());
  description->insert("secure", field.echoMode() == QLineEdit::Password);
  description->insert("color", textColorOf(field));
  description->insert("alignment", describeAlignment(field.alignment()));
}

void describe(const QAbstractButton& button, QJsonObject* description) {
  insertText(button, description);
  if (button.isCheckable()) description->insert("state", button.isChecked() ? 1 : 0);
}

void describe(const BRNHyperlinkTextField& link, QJsonObject* description) {
  insertText(link, description);
  const bool isBlue = link.noClickColor() == BRNHyperlinkTextField::NoClickColor::Blue;
  description->insert("color", isBlue ? QStringLiteral("blue") : textColorOf(link));
}

void describe(const PopUpButton& button, QJsonObject* description) {
  QJsonArray items;
  for (int item = 0; item < button.count(); ++item) items.append(button.itemText(item));
  description->insert("text", button.title());
  description->insert("items", items);
  description->insert("font", describeFont(button.font()));
}

void describe(const FlatImageButton& button, QJsonObject* description) {
  const FlatImageButton::ImageNames& names = button.imageNames();
  description->insert("images", QJsonObject{{"normal", names.normal},
                                            {"hover", names.hover},
                                            {"pressed", names.pressed},
                                            {"focus", names.focus},
                                            {"disabled", names.disabled}});
}

void describe(const Spinner& spinner, QJsonObject* description) {
  description->insert("animating", spinner.isAnimating());
}

void describe(const MarigoldWarningView& notice, QJsonObject* description) {
  description->insert("text", notice.warningText());
}

// A class stands before the classes that refine it.
template <typename... Controls>
void describeAs(const QWidget& view, QJsonObject* description) {
  const auto describeIf = [description](const auto* control) {
    if (control) describe(*control, description);
  };
  (describeIf(qobject_cast<const Controls*>(&view)), ...);
}

QJsonObject describeDrawnText(const DrawnText& drawn) {
  const QJsonObject font = {{"size", drawn.size}, {"bold", drawn.role == FontRole::BoldSystem}};
  return {{"class", "drawn"},
          {"text", drawn.text},
          {"frame", describeFrame(drawn.frame)},
          {"font", font},
          {"alignment", describeAlignment(drawn.alignment)}};
}

bool takesTab(const QWidget& view) {
  return view.focusPolicy() & Qt::TabFocus;
}

// The view that Tab moves to; nullptr when the focus stays.
const QWidget* nextControlOf(const QWidget& view) {
  if (const QWidget* next = nextKeyViewOf(&view)) return next;
  if (!takesTab(view)) return nullptr;
  const QWidget* content = view.window()->findChild<QWidget*>(QStringLiteral("contentSubview"));
  for (const QWidget* next = view.nextInFocusChain(); next != &view; next = next->nextInFocusChain()) {
    const bool isControl = content && content->isAncestorOf(next) && !controlNameOf(*next).isNull();
    if (isControl && takesTab(*next) && next->isEnabled() && next->isVisibleTo(content)) return next;
  }
  return nullptr;
}

QJsonArray describeToolBar(const Window& window) {
  QJsonArray items;
  for (const QAction* item : paneItemsOf(window)) {
    items.append(QJsonObject{{"label", item->text()}, {"enabled", item->isEnabled()}});
  }
  return items;
}

QJsonValue selectedLabelOf(const Window& window) {
  for (const QAction* item : paneItemsOf(window)) {
    if (item->isChecked()) return item->text();
  }
  return QJsonValue::Null;
}

QJsonObject describeAnimation(const ViewAnimation* animation) {
  return {{"running", animation && animation->isRunning()},
          {"duration", animation ? animation->duration() : 0.0}};
}

QJsonObject describeView(const QWidget& view) {
  QJsonObject description = {{"class", QString::fromLatin1(view.metaObject()->className())},
                             {"name", controlNameOf(view)},
                             {"frame", describeFrame(frameOf(&view))},
                             {"hidden", view.isHidden()},
                             {"enabled", view.isEnabled()}};
  describeAs<QLabel, StaticText, QLineEdit, QPushButton, QRadioButton, QCheckBox, BRNHyperlinkTextField,
             PopUpButton, FlatImageButton, Spinner, MarigoldWarningView>(view, &description);
  if (!view.toolTip().isEmpty()) description.insert("toolTip", view.toolTip());
  if (const QWidget* next = nextControlOf(view)) description.insert("next", controlNameOf(*next));
  QJsonArray children;
  for (const QWidget* child : subviewsOf(&view)) children.append(describeView(*child));
  if (const auto* drawing = qobject_cast<const View*>(&view)) {
    for (const DrawnText& drawn : drawing->drawnTexts()) children.append(describeDrawnText(drawn));
  }
  description.insert("children", children);
  return description;
}

}  // namespace

QJsonValue describeWindow(const Window* window) {
  if (!window) return QJsonValue::Null;
  const QWidget* content = contentViewOf(*window);
  return QJsonObject{
      {"controller", QString::fromLatin1(window->controller()->metaObject()->className())},
      {"title", window->windowTitle()},
      {"visible", window->isVisible()},
      {"key", window->isActiveWindow()},
      {"frame", describeFrame(frameOf(window))},
      {"selected", selectedLabelOf(*window)},
      {"toolbar", describeToolBar(*window)},
      {"animation", describeAnimation(animationOf(*window))},
      {"firstResponder", valuecodec::encode(ControlFinder(content).nameOf(window->focusWidget()))},
      {"content", describeView(*content)},
  };
}

QJsonValue describeSignIn(const QWidget* window) {
  if (!window) return QJsonValue::Null;
  const auto* message = window->findChild<QLabel*>(QStringLiteral("m_messageTxt"));
  const auto* address = window->findChild<QLineEdit*>(QStringLiteral("m_addressTxt"));
  const auto* code = window->findChild<QLineEdit*>(QStringLiteral("m_codeTxt"));
  QJsonArray buttons;
  for (const QPushButton* button : window->findChildren<QPushButton*>()) {
    buttons.append(QJsonObject{
        {"name", button->objectName()}, {"text", button->text()}, {"enabled", button->isEnabled()}});
  }
  return QJsonObject{{"title", window->windowTitle()},
                     {"message", message ? message->text() : QString()},
                     {"address", address ? address->text() : QString()},
                     {"code", code ? QJsonValue(code->text()) : QJsonValue()},
                     {"buttons", buttons}};
}
