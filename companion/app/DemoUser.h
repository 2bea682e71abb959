#pragma once

#include "host/KZFoundation/Dictionary.h"

// The example user of the companion, signed in or as a guest. The identity is in the settings store, where
// the plug-in reads it; a guest's changes are kept during a sign-in.
namespace demouser {

enum class Variant { SignedIn, Guest };

void become(Variant variant);

// The record of a meeting service that has not answered.
Dictionary record();

}  // namespace demouser
