#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/panes/account/NonSignInPrefAccountView+Visible.h"
#include "platform/View.h"

class BRNHyperlinkTextField;
class QLineEdit;
class StaticText;

// The guest's Account pane: shows a name and an email address, which the user can edit and save.
class NonSignInPrefAccountView final : public View, public NonSignInPrefAccountViewVisible {
  Q_OBJECT

 public:
  NonSignInPrefAccountView(const Frame& frame,
                           PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  // Ends editing without saving, and shows the stored profile.
  void refreshAccountInfo();

  QList<DrawnText> drawnTexts() const override;

 protected:
  void viewDidUnhide() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  DrawnText drawAccountLabel() const;
  void initLabels();
  void initTxts();
  void initInputTextFields();
  void initErrorText();
  void initEditButton();
  void onEditButton();
  void onInputTxtEnter();
  void controlTextDidChange();
  void changeEditStatus();
  void refreshDisplayModeTxt();
  void refreshEditModeTxt();
  bool checkName(const QString& name, const QString& email);
  QLineEdit* createInputTextFieldWithRect(const char* name, const Frame& frame, const QString& text);

  PreferenceActionDelegateProtocol* m_actionDelegate;
  BRNHyperlinkTextField* m_editBtn = nullptr;
  StaticText* m_nameTxt = nullptr;
  StaticText* m_emailTxt = nullptr;
  QLineEdit* m_nameInputTxt = nullptr;
  QLineEdit* m_emailInputTxt = nullptr;
  StaticText* m_warningMsg = nullptr;
  bool m_bIsEditing = false;
};
