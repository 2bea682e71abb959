#pragma once

class QLabel;
class QWidget;

// A label that says, while settings or passwords cannot be kept, why and what to do about it, and in the run
// that found the settings damaged where they are; hidden otherwise. It follows the store and the keychain by
// itself. Main thread only.
[[nodiscard]] QLabel* createFaultNotice(QWidget* parent);
