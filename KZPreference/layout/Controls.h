#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QString>

#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "platform/Frame.h"
#include "platform/PopUpButton.h"
#include "platform/StaticText.h"

// The controls of the panes. Each is added to the view at that frame, with that object name.

StaticText* addLabel(QWidget* view, const char* name, const Frame& frame, const QString& text,
                     Qt::Alignment alignment = Qt::AlignLeft);
// The bold title of a group.
StaticText* addTitle(QWidget* view, const char* name, const Frame& frame, const QString& text,
                     Qt::Alignment alignment = Qt::AlignLeft);
QCheckBox* addCheckbox(QWidget* view, const char* name, const Frame& frame, const QString& title);
PopUpButton* addPopUpButton(QWidget* view, const char* name, const Frame& frame, const QStringList& items);
BRNHyperlinkTextField* addLink(QWidget* view, const char* name, const Frame& frame, const QString& text);

enum class Echo { Plain, Secret };
QLineEdit* addTextField(QWidget* view, const char* name, const Frame& frame, Echo echo = Echo::Plain);
