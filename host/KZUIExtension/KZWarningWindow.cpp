#include "host/KZUIExtension/KZWarningWindow.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>

#include "host/KZUIExtension/KZRetinaHelper.h"
#include "host/KZUtility/KZStringTable.h"

namespace {

constexpr int kWarningMargin = 20;
constexpr int kWarningSign = 48;
constexpr int kWarningTextLeft = kWarningMargin + kWarningSign + 16;
constexpr int kMessageWidth = 320;
constexpr int kMostLines = 10;
constexpr int kLongestMessage = 10'000;  // one endless line would take minutes to break
constexpr int kLongestTitle = 300;       // a longer one would make the window huge

// The message and title look like labels, in the window's own colour.
void makeMessageFlat(QPlainTextEdit* message) {
  message->setReadOnly(true);
  message->setFrameShape(QFrame::NoFrame);
  message->setUndoRedoEnabled(false);
  message->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  message->setTabChangesFocus(true);
  message->setFixedWidth(kMessageWidth);
  message->document()->setDocumentMargin(0);
  message->viewport()->setAutoFillBackground(false);
}

QString warningText(const char* english) {
  static KZStringTable table(QStringLiteral(":/KZHost/translations"), QStringLiteral("KZHost"));
  return table.text(english);
}

}  // namespace

KZWarningWindow::KZWarningWindow()
    : m_title(new QLabel), m_message(new QPlainTextEdit), m_ok(new QPushButton) {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  setAttribute(Qt::WA_QuitOnClose, false);

  QFont bold = font();
  bold.setBold(true);
  m_title->setFont(bold);
  m_title->setTextFormat(Qt::PlainText);
  m_title->setWordWrap(true);
  m_title->setFixedWidth(kMessageWidth);
  makeMessageFlat(m_message);
  m_ok->setText(warningText("OK"));
  m_ok->setDefault(true);
  m_ok->setMinimumWidth(76);
  connect(m_ok, &QPushButton::clicked, this, &QWidget::close);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kWarningTextLeft, kWarningMargin, kWarningMargin, kWarningMargin);
  column->setSpacing(8);
  column->addWidget(m_title);
  column->addWidget(m_message);
  column->addSpacing(8);
  column->addWidget(m_ok, 0, Qt::AlignRight);
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void KZWarningWindow::setTexts(const QString& title, const QString& message) {
  setWindowTitle(title);
  setAccessibleName(title);
  m_title->setText(title.left(kLongestTitle));
  m_title->setVisible(!title.isEmpty());
  const QString shown =
      message.size() > kLongestMessage ? message.left(kLongestMessage) + QChar(0x2026) : message;
  m_message->setPlainText(shown);
  m_message->setAccessibleName(shown);
  m_message->setVisible(!message.isEmpty());
  fitMessage();
}

void KZWarningWindow::fitMessage() {
  const QFontMetrics metrics(m_message->font());
  const QRect room(0, 0, kMessageWidth, metrics.lineSpacing() * kMostLines);
  const int needed =
      metrics.boundingRect(room, Qt::TextWrapAnywhere | Qt::TextWordWrap, m_message->toPlainText()).height();
  m_message->setFixedHeight(qBound(metrics.lineSpacing(), needed, room.height()) + 2);
  m_message->setFocusPolicy(needed > room.height() ? Qt::StrongFocus : Qt::ClickFocus);
}

void KZWarningWindow::keyPressEvent(QKeyEvent* event) {
  const bool isClosing =
      event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isClosing || event->matches(QKeySequence::Close)) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

void KZWarningWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QIcon sign = KZRetinaHelper::shareInstance().newPNGImageInBundle(QStringLiteral(":/KZHost/images"),
                                                                         QStringLiteral("sign_warning"));
  const QRect place(kWarningMargin, kWarningMargin, kWarningSign, kWarningSign);
  sign.paint(&painter, QStyle::visualRect(layoutDirection(), rect(), place));
}

void KZWarningWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_ok->setFocus();
}

void KZWarningWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitMessage();
}
