#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkReply>
#include <QPushButton>

#include "tests/adal/SignInFixture.h"

namespace {

class ADSignInDialogTest : public SignInFixture {
 protected:
  static QList<QWidget*> dialogs() {
    QList<QWidget*> shown = QApplication::topLevelWidgets();
    shown.removeIf(
        [](QWidget* widget) { return !widget->isVisible() || qobject_cast<QDialog*>(widget) == nullptr; });
    return shown;
  }
  template <typename T>
  static T* control(const char* name) {
    const QList<QWidget*> shown = dialogs();
    return shown.size() == 1 ? shown.first()->findChild<T*>(QLatin1String(name)) : nullptr;
  }
  static void press(const char* name) {
    auto* const button = control<QPushButton>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  void startWith(const char* redirectUri) {
    signIn(result, QUrl(QLatin1String(redirectUri)));
    ASSERT_TRUE(waitForBrowser());
    ASSERT_EQ(dialogs().size(), 1);
  }

  Result result;
};

constexpr char pastedCode[] = "urn:ietf:wg:oauth:2.0:oob";

TEST_F(ADSignInDialogTest, TakesThePastedCode) {
  startWith(pastedCode);
  EXPECT_FALSE(dialogs().first()->isModal());
  EXPECT_EQ(redirectOf(opened.first()).toString(), pastedCode);
  EXPECT_FALSE(control<QPushButton>("m_continueBtn")->isEnabled());

  QNetworkReply* const page = visit(opened.first());
  ASSERT_TRUE(QTest::qWaitFor([page] { return page->isFinished(); }));
  const QByteArray text = page->readAll();
  const qsizetype from = text.indexOf("<pre>") + 5;
  const QString code = QString::fromUtf8(text.sliced(from, text.indexOf("</pre>") - from));

  QTest::keyClicks(control<QLineEdit>("m_codeTxt"), " " + code + " ");
  press("m_continueBtn");
  EXPECT_TRUE(dialogs().isEmpty());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

TEST_F(ADSignInDialogTest, ReadsPastedAnswers) {
  const QString answer = "?code=c1&state=STATE&iss=ISSUER";
  const std::pair<QString, QString> cases[] = {
      {"c1", "c1"},
      {"a?b=c#d", "a?b=c#d"},
      {"https://example.com/done" + answer, "c1"},
      {"https://example.com/done" + answer + "#_=_", "c1"},
      {answer, "c1"},
      {"https://example.com/?code=c1&state=other", ""},
      {"https://example.com/done", ""},
      {"?error=access_denied&state=other", ""},
  };
  for (const auto& [text, code] : cases) {
    SCOPED_TRACE(text.toStdString());
    opened.clear();
    result.reset();
    startWith(pastedCode);
    const qsizetype requests = authority->tokenRequests().size();
    auto* const field = control<QLineEdit>("m_codeTxt");
    QString pasted = text;
    field->setText(
        pasted.replace("STATE", queryValue(opened.last(), "state")).replace("ISSUER", authority->address()));
    press("m_continueBtn");
    if (!code.isEmpty()) {
      EXPECT_TRUE(dialogs().isEmpty());
      ASSERT_TRUE(waitFor(result));
      ASSERT_EQ(authority->tokenRequests().size(), requests + 1);
      EXPECT_EQ(authority->tokenRequests().last().queryItemValue("code", QUrl::FullyDecoded), code);
      continue;
    }
    ASSERT_EQ(dialogs().size(), 1);
    EXPECT_TRUE(control<QLabel>("m_messageTxt")->text().contains("not the expected answer"));
    EXPECT_EQ(field->selectedText(), field->text()) << "pasting again replaces it";
    press("m_cancelBtn");
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(authority->tokenRequests().size(), requests);
  }
}

TEST_F(ADSignInDialogTest, BlanksAreNoCode) {
  startWith(pastedCode);
  auto* const field = control<QLineEdit>("m_codeTxt");
  QTest::keyClicks(field, "  ");
  EXPECT_FALSE(control<QPushButton>("m_continueBtn")->isEnabled());
  QTest::keyClick(field, Qt::Key_Return);
  ASSERT_EQ(dialogs().size(), 1);
  QTest::keyClicks(field, "x");
  EXPECT_TRUE(control<QPushButton>("m_continueBtn")->isEnabled());
  EXPECT_TRUE(authority->tokenRequests().isEmpty());
}

TEST_F(ADSignInDialogTest, OpensAgainCopiesAndCancels) {
  for (const char* redirectUri : {pastedCode, "http://127.0.0.1"}) {
    SCOPED_TRACE(redirectUri);
    opened.clear();
    result.reset();
    startWith(redirectUri);
    press("m_openAgainBtn");
    ASSERT_EQ(opened.size(), 2);
    EXPECT_EQ(opened.first(), opened.last());
    press("m_copyBtn");
    EXPECT_EQ(QApplication::clipboard()->text(), opened.first().toString(QUrl::FullyEncoded));
    press("m_cancelBtn");
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->status, ADAuthenticationStatus::UserCancelled);
    EXPECT_TRUE(dialogs().isEmpty());
  }
}

TEST_F(ADSignInDialogTest, ClosingCancelsAndAnAnswerCloses) {
  startWith("http://127.0.0.1");
  dialogs().first()->close();
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::UserCancelled);

  result.reset();
  opened.clear();
  startWith("http://127.0.0.1");
  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  EXPECT_TRUE(dialogs().isEmpty());
}

TEST_F(ADSignInDialogTest, WithoutABrowserTheAddressIsThereToTake) {
  ADAuthenticationSettings::sharedInstance().setBrowserOpener([](const QUrl&) { return false; });
  signIn(result, QUrl("http://127.0.0.1"));
  ASSERT_TRUE(QTest::qWaitFor([] { return dialogs().size() == 1; }));
  visit(QUrl(control<QLineEdit>("m_addressTxt")->text()));
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

}  // namespace
