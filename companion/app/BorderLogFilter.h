#pragma once

#include <QSortFilterProxyModel>
#include <optional>

#include "companion/app/BorderEvent.h"

// Shows the events of one kind whose name or content holds a text.
class BorderLogFilter final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void setKind(std::optional<BorderEvent::Kind> kind);  // nothing: every kind
  void setText(const QString& text);                    // case does not matter

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  std::optional<BorderEvent::Kind> m_kind;
  QString m_text;
};
