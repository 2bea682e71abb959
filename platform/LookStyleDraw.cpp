#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

#include "platform/LookStyle.h"
#include "platform/LookStyleParts.h"

namespace {

bool isToolbarItem(const QWidget* widget) {
  return qobject_cast<const QToolButton*>(widget) && qobject_cast<const QToolBar*>(widget->parentWidget());
}

bool isToolbarExtension(const QWidget* widget) {
  return widget->objectName() == QLatin1String("qt_toolbar_ext_button");
}

}  // namespace

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  switch (element) {
    case PE_FrameFocusRect:  // every control except list cells draws its own
      if (const auto* cell = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
          cell && lookLists::isList(widget)) {
        lookLists::drawCellFocus(*cell, painter);
      }
      return;
    case PE_Frame:
      if (lookLists::isList(widget)) return lookLists::drawFrame(*option, painter);
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    case PE_FrameStatusBarItem:
    case PE_IndicatorToolBarSeparator:  // a gap, no line
    case PE_PanelScrollAreaCorner:      // the window itself, between two thin bars
      return;
    case PE_PanelLineEdit:
    case PE_FrameLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      if (!frame || frame->lineWidth > 0) lookFields::draw(*option, painter, widget);
      return;
    }
    case PE_IndicatorCheckBox:
      return lookButtons::drawIndicator(*option, false, painter);
    case PE_IndicatorRadioButton:
      return lookButtons::drawIndicator(*option, true, painter);
    case PE_PanelMenu:
    case PE_FrameMenu:
      return lookPopUp::drawMenuPanel(*option, painter);
    default:
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  switch (element) {
    case CE_PushButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        return lookButtons::drawPush(*button, painter);
      }
      break;
    case CE_CheckBox:
    case CE_RadioButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        return lookButtons::drawChoice(*button, element == CE_RadioButton, painter, widget);
      }
      break;
    case CE_ComboBoxLabel:
      if (const auto* popUp = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        return lookPopUp::drawLabel(*popUp, painter);
      }
      break;
    case CE_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        return lookPopUp::drawMenuItem(*item, painter);
      }
      break;
    case CE_MenuEmptyArea:
      painter->fillRect(option->rect, lookColorsOf(*option).menu);
      return;
    case CE_TabBarTabShape:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
          tab && lookTabs::isSwitch(*tab)) {
        return lookTabs::drawTab(*tab, painter);
      }
      break;
    case CE_TabBarTabLabel:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
          tab && lookTabs::isSwitch(*tab)) {
        return lookTabs::drawLabel(*tab, painter);
      }
      break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      return lookLists::drawHeading(*option, painter);
    case CE_ToolBar:
      return lookToolbar::drawBar(*option, painter);
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    if (const auto* popUp = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
      return lookPopUp::draw(*popUp, painter);
    }
  }
  if (control == CC_ScrollBar) {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
      return lookScrollBar::draw(*bar, painter);
    }
  }
  if (control == CC_ToolButton && isToolbarItem(widget)) {
    if (isToolbarExtension(widget)) return lookToolbar::drawExtension(*option, painter);
    if (const auto* item = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
      return lookToolbar::drawItem(*item, painter);
    }
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}
