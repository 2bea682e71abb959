#pragma once

#include <QtGlobal>

#if defined(KZHost_EXPORTS)
#define KZ_HOST_EXPORT Q_DECL_EXPORT
#else
#define KZ_HOST_EXPORT Q_DECL_IMPORT
#endif

// For a constant in a header: usable without linking, and exported under its name by every library that
// includes it, whether it is used there or not.
#define KZ_EXPORTED_CONSTANT [[gnu::used]] Q_DECL_EXPORT inline
