#pragma once

#include <QtGlobal>

#if defined(KZAdal_EXPORTS)
#define ADAL_EXPORT Q_DECL_EXPORT
#else
#define ADAL_EXPORT Q_DECL_IMPORT
#endif
