#include "companion/app/AccountsDialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int kMeaningColumn = 3;
constexpr int kColumnGap = 12;

QTableWidget* createAccountsTable(const QList<SandboxAccount>& accounts) {
  auto* table = new QTableWidget(static_cast<int>(accounts.size()), kMeaningColumn + 1);
  table->setHorizontalHeaderLabels({QStringLiteral("Address"), QStringLiteral("User name"),
                                    QStringLiteral("Password"), QStringLiteral("What happens")});
  table->setAccessibleName(QStringLiteral("Accounts to try"));
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setTabKeyNavigation(false);
  table->setShowGrid(false);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  for (int row = 0; row < table->rowCount(); ++row) {
    const SandboxAccount& account = accounts.at(row);
    const QString texts[] = {account.email, account.username, account.password, account.meaning};
    for (int column = 0; column < table->columnCount(); ++column) {
      table->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
  }
  table->resizeColumnsToContents();
  for (int column = 0; column < kMeaningColumn; ++column) {
    table->setColumnWidth(column, table->columnWidth(column) + kColumnGap);
  }
  table->horizontalHeader()->setSectionResizeMode(kMeaningColumn, QHeaderView::Stretch);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  return table;
}

}  // namespace

AccountsDialog::AccountsDialog(const QList<SandboxAccount>& accounts, QWidget* parent) : QDialog(parent) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Accounts to try"));
  resize(960, 480);
  auto* column = new QVBoxLayout(this);
  auto* text =
      new QLabel(QStringLiteral("The sandbox on this machine knows these. Enter one for Exchange in the "
                                "Meetings pane; Ctrl+C copies."));
  text->setWordWrap(true);
  column->addWidget(text);
  column->addWidget(createAccountsTable(accounts));
}
