#include "companion/app/SiteDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

#include "companion/app/Rows.h"
#include "companion/network/WebAddress.h"
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
  setMinimumWidth(480);
  m_site->selectAll();
  auto* label = new QLabel(companionText("&Site of your meeting service:"));
  label->setBuddy(m_site);
  m_text->setObjectName(QStringLiteral("siteText"));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(10);
  column->addWidget(label);
  column->addWidget(m_site);
  column->addWidget(m_text);
  column->addWidget(createButtons());
  m_change->setDefault(true);  // known to the dialog only now
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, &QDialog::reject);
  connect(m_site, &QLineEdit::textChanged, this, &SiteDialog::forgetFailure);
  m_site->setFocus();
  say({});
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
  QHBoxLayout* row = addRow(bar, 8);
  auto* keep = new QPushButton(companionText("&Keep the old site"));
  m_useAnyway = new QPushButton(companionText("&Use it anyway"));
  m_change = new QPushButton(companionText("&Change"));
  m_useAnyway->hide();
  row->addStretch(1);
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
  constexpr int kUsualLines = 2;
  m_text->setText(text);
  // A dialog does not grow by itself for a text of more lines.
  m_text->setMinimumHeight(
      std::max(kUsualLines * fontMetrics().lineSpacing(), m_text->heightForWidth(m_text->width())));
  announce(m_text, text);
}

void SiteDialog::showFailure(const QString& reason) {
  m_change->setEnabled(true);
  say(reason);
  m_useAnyway->setVisible(!siteAddress(site()).isEmpty());
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
