#pragma once

#include <QLabel>

#include "host/KZUtility/KZSaveProblem.h"

// Tells the user while settings or passwords cannot be kept, and what to do about it, and in the run that
// found the settings damaged; hidden otherwise. Follows the store and the keychain by itself. Main thread
// only.
class FaultNotice final : public QLabel {
  Q_OBJECT

 public:
  explicit FaultNotice(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void renew();
};
