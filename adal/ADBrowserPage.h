#pragma once

#include <QByteArray>

// What the browser shows after its redirect.
enum class ADBrowserPage { SignedIn, Refused, Failed, NotExpected, Pending };

// The page as HTML, in the user's language. It has no script and loads nothing.
QByteArray browserPageHtml(ADBrowserPage page);

// The content security policy for it: nothing but its own style.
QByteArray browserPagePolicy();
