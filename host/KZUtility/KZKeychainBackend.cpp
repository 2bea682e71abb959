#include "host/KZUtility/KZKeychainBackend.h"

KZKeychainBackend::KZKeychainBackend() = default;
KZKeychainBackend::~KZKeychainBackend() = default;
