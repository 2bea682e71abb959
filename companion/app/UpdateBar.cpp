#include "companion/app/UpdateBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include "companion/services/UpdateService.h"

namespace {

constexpr int kProgressSteps = 1000;

}  // namespace

UpdateBar::UpdateBar(UpdateService* updates)
    : m_text(new QLabel),
      m_progress(new QProgressBar),
      m_download(new QPushButton(QStringLiteral("Download"))),
      m_cancel(new QPushButton(QStringLiteral("Cancel"))) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  m_text->setTextFormat(Qt::PlainText);
  m_progress->setTextVisible(false);
  m_progress->setAccessibleName(QStringLiteral("Progress of the download"));
  row->addWidget(m_text);
  row->addWidget(m_progress, 1);
  row->addStretch();
  row->addWidget(m_download);
  row->addWidget(m_cancel);
  hide();
  connect(updates, &UpdateService::started, this, &UpdateBar::showStart);
  connect(updates, &UpdateService::progressed, this, &UpdateBar::showProgress);
  connect(updates, &UpdateService::offered, this, &UpdateBar::showOffer);
  connect(updates, &UpdateService::ended, this, &QWidget::hide);
  connect(m_download, &QPushButton::clicked, updates, &UpdateService::check);
  connect(m_cancel, &QPushButton::clicked, updates, &UpdateService::cancel);
}

void UpdateBar::comeLastInTabOrder() {
  setTabOrder(window()->previousInFocusChain(), m_download);
  setTabOrder(m_download, m_cancel);
}

void UpdateBar::showStart() {
  m_text->setText(QStringLiteral("Checking for updates."));
  m_progress->setRange(0, 0);
  m_progress->show();
  m_cancel->show();
  m_download->hide();
  show();
}

void UpdateBar::showProgress(qint64 bytes, qint64 ofBytes) {
  const QLocale locale;
  m_text->setText(QStringLiteral("Fetching the update: %1 of %2.")
                      .arg(locale.formattedDataSize(bytes, 1), locale.formattedDataSize(ofBytes, 1)));
  m_progress->setRange(0, kProgressSteps);
  m_progress->setValue(static_cast<int>(bytes * kProgressSteps / ofBytes));
}

void UpdateBar::showOffer(const QString& text) {
  m_text->setText(text);
  m_progress->hide();
  m_cancel->hide();
  m_download->show();
  show();
}
