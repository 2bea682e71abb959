#pragma once

#include <QtGlobal>

#if defined(KZPlatform_EXPORTS)
#define PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define PLATFORM_EXPORT Q_DECL_IMPORT
#endif
