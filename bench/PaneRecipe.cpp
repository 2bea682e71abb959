#include "bench/PaneRecipe.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "companion/runtime/PreferencesWindow.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"
#include "platform/View.h"
#include "platform/WindowController.h"

namespace {

using Maker = std::function<QWidget*()>;

template <typename Plain>
Maker makerOf(const QString& text) {
  return [text] { return new Plain(text); };
}

Maker makerOfField(const QLineEdit& field) {
  return [text = field.text(), mode = field.echoMode()] {
    auto* plain = new QLineEdit(text);
    plain->setEchoMode(mode);
    return plain;
  };
}

Maker makerOfPopUp(const PopUpButton& popUp) {
  QStringList items;
  for (int item = 0; item < popUp.count(); ++item) items.append(popUp.itemText(item));
  return [items, title = popUp.title()] {
    auto* plain = new QComboBox;
    plain->addItems(items);
    plain->setCurrentText(title);
    return plain;
  };
}

QWidget* makeLine() {
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  return line;
}

// Nothing for a view that only contains others.
Maker makerFor(const QWidget& view) {
  if (const auto* box = qobject_cast<const QCheckBox*>(&view)) return makerOf<QCheckBox>(box->text());
  if (const auto* radio = qobject_cast<const QRadioButton*>(&view))
    return makerOf<QRadioButton>(radio->text());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&view))
    return makerOf<QPushButton>(button->text());
  if (const auto* field = qobject_cast<const QLineEdit*>(&view)) return makerOfField(*field);
  if (const auto* popUp = qobject_cast<const PopUpButton*>(&view)) return makerOfPopUp(*popUp);
  if (const auto* label = qobject_cast<const QLabel*>(&view)) return makerOf<QLabel>(label->text());
  if (qobject_cast<const SplitLineView*>(&view)) return &makeLine;
  return {};
}

void collectControls(const QWidget& pane, const QWidget& view, QList<PaneRecipe::ControlRecipe>* controls) {
  for (const QWidget* child : subviewsOf(&view)) {
    const QRect place(child->mapTo(&pane, QPoint()), child->size());
    if (const Maker make = makerFor(*child)) {
      controls->append([=, isEnabled = child->isEnabled(), isHidden = child->isHidden()](QWidget* plainPane) {
        QWidget* control = make();
        control->setParent(plainPane);
        control->setGeometry(place);
        control->setEnabled(isEnabled);
        control->setVisible(!isHidden);
      });
    }
    collectControls(pane, *child, controls);
  }
  const auto* drawing = qobject_cast<const View*>(&view);
  if (!drawing) return;
  for (const DrawnText& drawn : drawing->drawnTexts()) {
    const Frame& frame = drawn.frame;
    const QPoint corner(static_cast<int>(frame.x), static_cast<int>(view.height() - frame.maxY()));
    const QSize size(static_cast<int>(frame.width), static_cast<int>(frame.height));
    controls->append([text = drawn.text, place = QRect(view.mapTo(&pane, corner), size)](QWidget* plainPane) {
      (new QLabel(text, plainPane))->setGeometry(place);
    });
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
