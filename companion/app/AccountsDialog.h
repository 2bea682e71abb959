#pragma once

#include <QDialog>
#include <QList>

#include "companion/exchange/SandboxExchange.h"

// The sandbox's accounts, to read and to copy from.
class AccountsDialog final : public QDialog {
 public:
  AccountsDialog(const QList<SandboxAccount>& accounts, QWidget* parent);
};
