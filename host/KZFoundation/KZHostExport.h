#pragma once

#include <QtGlobal>

#if defined(KZHost_EXPORTS)
#define KZ_HOST_EXPORT Q_DECL_EXPORT
#else
#define KZ_HOST_EXPORT Q_DECL_IMPORT
#endif
