#pragma once

#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Defines a host constant and makes it findable by name. The text is the name unless another is given.
QString registeredConstant(const char* name, const char* text = nullptr);

// The constant object of that name (its buffer is the constant's own); null when there is none.
KZ_HOST_EXPORT QString constantNamed(const QString& name);

// The name of the constant whose very object the text is; null for any other text, equal ones included.
KZ_HOST_EXPORT QString constantNameOf(const QString& text);
