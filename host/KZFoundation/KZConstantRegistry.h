#pragma once

#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Defines a host constant and makes it findable by name. The text is the name unless another is given.
QString registeredConstant(const char* name, const char* text = nullptr);

// The constant of that name, sharing its buffer; null when there is none.
KZ_HOST_EXPORT QString constantNamed(const QString& name);

// The name of the constant whose buffer the text shares; null for any other text, even an equal one.
KZ_HOST_EXPORT QString constantNameOf(const QString& text);
