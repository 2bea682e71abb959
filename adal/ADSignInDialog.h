#pragma once

#include <QDialog>
#include <QUrl>

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

// Shows that a sign-in waits for the browser, and lets the user cancel it. When the browser cannot be
// redirected to the listener, it also asks for the code. It does not block the rest of the application.
class ADSignInDialog final : public QDialog {
  Q_OBJECT

 public:
  enum class Kind { WaitForBrowser, AskForCode };

  ADSignInDialog(Kind kind, const QUrl& address);

  void showProblem(const QString& text);

 Q_SIGNALS:
  void codeEntered(const QString& code);
  void openAgainRequested();

 private:
  void addCodeRow(QVBoxLayout* rows);
  void submit();

  QLabel* m_messageTxt = nullptr;
  QLineEdit* m_addressTxt = nullptr;
  QLineEdit* m_codeTxt = nullptr;
  QPushButton* m_continueBtn = nullptr;
};
