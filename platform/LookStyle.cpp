#include "platform/LookStyle.h"

#include <QApplication>
#include <QLineEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

#include "platform/LookStyleParts.h"

namespace {

constexpr int kToolTipDelay = 700;  // milliseconds
constexpr int kFieldHeight = 22;
constexpr int kFieldTextMargin = 5;

}  // namespace

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QLineEdit*>(widget)) widget->setAttribute(Qt::WA_Hover);
  if (!qobject_cast<QToolBar*>(widget)) return;
  // The toolbar creates its extension button itself, so the button gets its style here.
  for (QToolButton* item : widget->findChildren<QToolButton*>()) item->setStyle(this);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return lookButtons::kIndicator;
    case PM_ToolBarIconSize:
      return lookToolbar::kIcon;
    case PM_ToolBarItemMargin:
      return lookToolbar::kMargin;
    case PM_ToolBarItemSpacing:
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabOverlap:
    case PM_TabBarTabShiftVertical:
    case PM_ToolBarFrameWidth:
    case PM_ToolBarHandleExtent:
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    case PM_ToolBarExtensionExtent:
      return lookToolbar::kIcon;
    case PM_FocusFrameHMargin:
      if (lookLists::isList(widget)) return lookLists::kTextMargin - 1;  // the delegate adds one
      return QProxyStyle::pixelMetric(metric, option, widget);
    case PM_HeaderMargin:
      return lookLists::kTextMargin;
    case PM_DefaultFrameWidth:
      if (lookLists::isList(widget)) return lookLists::kFrame;
      return QProxyStyle::pixelMetric(metric, option, widget);
    case PM_ScrollBarExtent:
      return lookScrollBar::kExtent;
    case PM_MenuPanelWidth:
      return 1;
    case PM_MenuVMargin:
      return 3;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returnData) const {
  switch (hint) {
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
      // The application's style decides about reduced motion, unless it is this style.
      if (const QStyle* own = QApplication::style(); own != this) return own->styleHint(hint);
      return QProxyStyle::styleHint(hint, option, widget, returnData);
    case SH_ToolTip_WakeUpDelay:
      return kToolTipDelay;
    case SH_ComboBox_Popup:
      return 1;
    case SH_EtchDisabledText:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returnData);
  }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  switch (type) {
    case CT_PushButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        return lookButtons::pushSize(*button);
      }
      break;
    case CT_CheckBox:
    case CT_RadioButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        return lookButtons::choiceSize(*button);
      }
      break;
    case CT_LineEdit:
      return {size.width() + 2 * kFieldTextMargin, qMax(kFieldHeight, size.height() + 2)};
    case CT_ComboBox:
      if (const auto* popUp = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        return lookPopUp::size(*popUp, size);
      }
      break;
    case CT_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        return lookPopUp::menuItemSize(*item);
      }
      break;
    case CT_TabBarTab:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
          tab && lookTabs::isSwitch(*tab)) {
        return lookTabs::tabSize(*tab);
      }
      break;
    case CT_ToolButton:
      if (const auto* item = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
        return lookToolbar::itemSize(*item);
      }
      break;
    default:
      break;
  }
  return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QRect LookStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  if (element == SE_LineEditContents) {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (frame && frame->lineWidth == 0) return option->rect;
    return option->rect.adjusted(kFieldTextMargin, 1, -kFieldTextMargin, -1);
  }
  if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect) return option->rect;
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl subControl, const QWidget* widget) const {
  if (control == CC_ScrollBar) {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
      return lookScrollBar::part(*bar, subControl);
    }
  }
  if (control == CC_ComboBox && subControl == SC_ComboBoxEditField) {
    return lookPopUp::editField(option->rect, option->direction);
  }
  return QProxyStyle::subControlRect(control, option, subControl, widget);
}
