#include "companion/app/SiteDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "companion/app/Rows.h"
#include "companion/network/WebAddress.h"
#include "companion/runtime/FlowLayout.h"
#include "companion/services/SiteService.h"
#include "companion/texts/CompanionText.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/Accessible.h"

SiteDialog::SiteDialog(SiteService* service, QWidget* parent)
    : QDialog(parent),
      m_service(service),
      m_site(new QLineEdit(KZPlistFileHandle::sharedInstance().siteName())),
      m_text(new QLabel) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(companionText("Change site"));
  constexpr int kLeastWidth = 480;
  constexpr int kLeastCharacters = 45;
  setMinimumWidth(std::max(kLeastWidth, kLeastCharacters * fontMetrics().averageCharWidth()));
  m_site->selectAll();
  auto* label = new QLabel(companionText("&Site of your meeting service:"));
  label->setBuddy(m_site);
  m_text->setObjectName(QStringLiteral("siteText"));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_text->setMinimumHeight(2 * fontMetrics().lineSpacing());
  m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(10);
  column->addWidget(label);
  column->addWidget(m_site);
  column->addWidget(m_text, 1);
  column->addWidget(createButtons());
  m_change->setDefault(true);  // known to the dialog only now
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, &QDialog::reject);
  connect(m_site, &QLineEdit::textChanged, this, &SiteDialog::forgetFailure);
  m_site->setFocus();
}

SiteDialog::~SiteDialog() {
  m_service->cancelLookUp();
}

void SiteDialog::done(int result) {
  m_service->cancelLookUp();
  QDialog::done(result);
}

QWidget* SiteDialog::createButtons() {
  auto* bar = new QWidget;
  auto* row = new FlowLayout(bar, 8, 8);
  auto* keep = new QPushButton(companionText("&Keep the old site"));
  m_useAnyway = new QPushButton(companionText("&Use it anyway"));
  m_change = new QPushButton(companionText("&Change"));
  m_useAnyway->hide();
  row->addWidget(keep);
  row->addWidget(m_useAnyway);
  row->addWidget(m_change);
  connect(keep, &QPushButton::clicked, this, &QDialog::reject);
  connect(m_useAnyway, &QPushButton::clicked, this, &SiteDialog::useAnyway);
  connect(m_change, &QPushButton::clicked, this, &SiteDialog::askChosen);
  return bar;
}

QString SiteDialog::site() const {
  return m_site->text().trimmed().toLower();
}

void SiteDialog::ask(const QString& site) {
  m_site->setText(site);
  askChosen();
}

void SiteDialog::askChosen() {
  forgetFailure();
  m_change->setEnabled(false);
  say(companionText("Asking the site."));
  m_service->lookUp(site(), [this](const SiteService::Result& result) {
    if (!result.site) return showFailure(result.failure);
    // The last line may destroy the dialog.
    SiteService* const service = m_service;
    accept();
    service->adopt(*result.site);
  });
}

void SiteDialog::say(const QString& text) {
  QString shown = text;
  // A long name wraps at its dots.
  if (fontMetrics().horizontalAdvance(site()) > m_text->width())
    shown.replace(u'.', QStringLiteral(".\u200b"));
  m_text->setText(shown);
  // A dialog does not grow by itself for a text or buttons of more lines.
  layout()->activate();
  resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
  announce(m_text, text);
}

void SiteDialog::showFailure(const QString& reason) {
  m_change->setEnabled(true);
  m_useAnyway->setVisible(!siteAddress(site()).isEmpty());
  say(reason);
}

void SiteDialog::forgetFailure() {
  // The field holds another site now.
  m_service->cancelLookUp();
  m_change->setEnabled(true);
  say({});
  m_useAnyway->hide();
}

void SiteDialog::useAnyway() {
  const QString chosen = site();
  SiteService* const service = m_service;
  accept();
  service->adoptSilent(chosen);
}
