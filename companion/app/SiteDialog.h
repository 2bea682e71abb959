#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class SiteService;

// Asks for another site, which must answer before it is taken; one that does not may be taken all the same.
class SiteDialog final : public QDialog {
  Q_OBJECT

 public:
  // The service is not owned and must outlive the dialog.
  SiteDialog(SiteService* service, QWidget* parent);
  ~SiteDialog() override;

  // As if the user had typed it.
  void ask(const QString& site);

  // Closed in any way: an answer that is still on its way changes nothing.
  void done(int result) override;

 private:
  QString site() const;
  QWidget* createButtons();
  void askChosen();
  void showFailure(const QString& reason);
  void forgetFailure();
  void useAnyway();

  SiteService* m_service;
  QLineEdit* m_site;
  QLabel* m_text;
  QPushButton* m_change = nullptr;
  QPushButton* m_useAnyway = nullptr;
};
