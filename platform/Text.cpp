#include "platform/Text.h"
