#pragma once

#include <QByteArray>

// 43 letters of the URL-safe alphabet that nobody can guess: a verifier or a state.
QByteArray unguessableText();

// The S256 challenge that goes with a verifier.
QByteArray proofKeyChallenge(const QByteArray& verifier);
