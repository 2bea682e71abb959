#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUIExtension/FlatImageButton.h"

namespace {

const QString kImages = QStringLiteral(":/sample/images");

struct Shown {
  explicit Shown(QAbstractButton* shownButton) : button(shownButton) {
    window.resize(120, 60);
    button->setParent(&window);
    button->setGeometry(10, 10, 60, 20);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  QWidget window;
  QAbstractButton* button;
};

BRNHyperlinkTextField* newLink() {
  auto* link = new BRNHyperlinkTextField;
  link->setUnderlineStyle(1);
  link->setNoClickColor(BRNHyperlinkTextField::NoClickColor::Blue);
  link->setStringValue("Change");
  return link;
}

FlatImageButton* newDetectButton() {
  auto* button = new FlatImageButton;
  button->setImageNames({.normal = "btn_verify_default",
                         .hover = "btn_verify_hover",
                         .pressed = "btn_verify_pressed",
                         .focus = "btn_verify_hover",
                         .disabled = "btn_verify_disabled"},
                        kImages);
  return button;
}

TEST(HostControls, AreClickedByMouseAndKeyboardOnceEach) {
  for (QAbstractButton* button :
       {static_cast<QAbstractButton*>(newLink()), static_cast<QAbstractButton*>(newDetectButton())}) {
    Shown shown(button);
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    button->setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
      clicks.clear();
      QTest::keyClick(button, key);
      QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
      QApplication::sendEvent(button, &held);
      EXPECT_EQ(clicks.count(), 1) << button->metaObject()->className() << ' ' << key;
    }
    clicks.clear();
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 0);
  }
}

TEST(HostControls, LookDifferentInEachState) {
  for (QAbstractButton* button :
       {static_cast<QAbstractButton*>(newLink()), static_cast<QAbstractButton*>(newDetectButton())}) {
    Shown shown(button);
    button->setAttribute(Qt::WA_UnderMouse, false);
    button->clearFocus();
    QList<QImage> pictures{button->grab().toImage()};
    const auto addState = [&] {
      const QImage picture = button->grab().toImage();
      for (const QImage& other : std::as_const(pictures)) EXPECT_NE(picture, other) << pictures.size();
      pictures.append(picture);
    };
    button->setAttribute(Qt::WA_UnderMouse);
    addState();
    button->setDown(true);
    addState();
    button->setDown(false);
    button->setAttribute(Qt::WA_UnderMouse, false);
    shown.window.setAttribute(Qt::WA_KeyboardFocusChange);
    button->setFocus(Qt::TabFocusReason);
    addState();
    button->setEnabled(false);
    addState();
  }
}

TEST(HostControls, AnImageButtonWithoutImageIsHarmless) {
  auto* button = new FlatImageButton;
  FlatImageButton::ImageNames names;
  names.normal = "no_such_image";
  button->setImageNames(names, kImages);
  Shown shown(button);
  EXPECT_FALSE(button->grab().isNull());
  EXPECT_FALSE(button->sizeHint().isValid());
}

}  // namespace
