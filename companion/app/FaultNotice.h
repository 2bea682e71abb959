#pragma once

class QLabel;
class QWidget;

// A label that shows why settings or passwords cannot be saved and what to do, or where damaged settings were
// moved in this run. Hidden otherwise. It observes the store and the keychain. Main thread only.
[[nodiscard]] QLabel* createFaultNotice(QWidget* parent);
