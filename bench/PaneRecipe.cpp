#include "bench/PaneRecipe.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <optional>

#include "companion/runtime/PreferencesWindow.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"
#include "platform/View.h"
#include "platform/WindowController.h"

namespace {

using Kind = ControlRecipe::Kind;

ControlRecipe recipeOfButton(const QAbstractButton& button) {
  Kind kind = Kind::Button;
  if (qobject_cast<const QCheckBox*>(&button)) kind = Kind::CheckBox;
  if (qobject_cast<const QRadioButton*>(&button)) kind = Kind::RadioButton;
  return {.kind = kind, .text = button.text()};
}

ControlRecipe recipeOfField(const QLineEdit& field) {
  return {.kind = field.echoMode() == QLineEdit::Normal ? Kind::Field : Kind::SecretField,
          .text = field.text()};
}

ControlRecipe recipeOfPopUp(const PopUpButton& popUp) {
  ControlRecipe recipe{.kind = Kind::PopUp, .text = popUp.title()};
  for (int item = 0; item < popUp.count(); ++item) recipe.items.append(popUp.itemText(item));
  return recipe;
}

// Nothing for a view that only contains others.
std::optional<ControlRecipe> recipeOfControl(const QWidget& view) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&view)) return recipeOfButton(*button);
  if (const auto* field = qobject_cast<const QLineEdit*>(&view)) return recipeOfField(*field);
  if (const auto* popUp = qobject_cast<const PopUpButton*>(&view)) return recipeOfPopUp(*popUp);
  if (const auto* label = qobject_cast<const QLabel*>(&view)) return ControlRecipe{.text = label->text()};
  if (qobject_cast<const SplitLineView*>(&view)) return ControlRecipe{.kind = Kind::Line};
  return {};
}

void collectControls(const QWidget& pane, const QWidget& view, QList<ControlRecipe>* controls) {
  for (const QWidget* child : subviewsOf(&view)) {
    if (auto recipe = recipeOfControl(*child)) {
      recipe->place = QRect(child->mapTo(&pane, QPoint()), child->size());
      recipe->isHidden = child->isHidden();
      recipe->isEnabled = child->isEnabled();
      controls->append(*recipe);
    }
    collectControls(pane, *child, controls);
  }
  const auto* drawing = qobject_cast<const View*>(&view);
  if (!drawing) return;
  for (const DrawnText& drawn : drawing->drawnTexts()) {
    const Frame& frame = drawn.frame;
    const QPoint corner(static_cast<int>(frame.x), static_cast<int>(view.height() - frame.maxY()));
    const QSize size(static_cast<int>(frame.width), static_cast<int>(frame.height));
    controls->append({.text = drawn.text, .place = QRect(view.mapTo(&pane, corner), size)});
  }
}

}  // namespace

QList<PaneRecipe> recipesOf(const Window& window) {
  QList<PaneRecipe> recipes;
  const QList<QAction*> items = paneItemsOf(window);
  for (QAction* item : items) {
    item->trigger();
    const QWidget& pane = *subviewsOf(contentViewOf(window)).last();
    PaneRecipe recipe{.label = item->text(), .icon = item->icon(), .size = pane.size()};
    collectControls(pane, pane, &recipe.controls);
    recipes.append(recipe);
  }
  items.first()->trigger();
  return recipes;
}
