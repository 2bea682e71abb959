#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class SiteService;

// Asks for another site and looks it up before it is used; one that does not respond may be used anyway.
class SiteDialog final : public QDialog {
  Q_OBJECT

 public:
  // The service is not owned and must outlive the dialog.
  SiteDialog(SiteService* service, QWidget* parent);
  ~SiteDialog() override;

  // As if the user had typed it.
  void ask(const QString& site);

  // However it is closed: a late answer changes nothing.
  void done(int result) override;

 private:
  QString site() const;
  QWidget* createButtons();
  void askChosen();
  void say(const QString& text);
  void showFailure(const QString& reason);
  void forgetFailure();
  void useAnyway();

  SiteService* m_service;
  QLineEdit* m_site;
  QLabel* m_text;
  QPushButton* m_change = nullptr;
  QPushButton* m_useAnyway = nullptr;
};
