#pragma once

#include "host/KZFoundation/Dictionary.h"

// Who uses the companion: an invented person, signed in or as a guest. The identity lives in the settings
// store, where the plug-in reads it; what a guest edits is kept over a sign-in.
namespace demouser {

enum class Variant { SignedIn, Guest };

void become(Variant variant);

// The record of a meeting service that has not answered.
Dictionary record();

}  // namespace demouser
