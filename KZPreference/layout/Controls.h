#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QString>

#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "platform/Frame.h"
#include "platform/PopUpButton.h"
#include "platform/StaticText.h"

// The controls that panes are made of: each is added to the view at its frame under its name.

struct StaticTextSpec {
  QString name;
  Frame frame;
  QString text;
  FontRole role = FontRole::Label;
  double size = 0;
  Qt::Alignment alignment = Qt::AlignLeft;
};

StaticText* addStaticText(QWidget* view, const StaticTextSpec& spec);
QCheckBox* addCheckbox(QWidget* view, const QString& name, const Frame& frame, const QString& title);
PopUpButton* addPopUpButton(QWidget* view, const QString& name, const Frame& frame, const QStringList& items);
BRNHyperlinkTextField* addLink(QWidget* view, const QString& name, const Frame& frame, const QString& text);

enum class Echo { Plain, Secret };
QLineEdit* addTextField(QWidget* view, const QString& name, const Frame& frame, Echo echo = Echo::Plain);
