#include "platform/StaticText.h"
