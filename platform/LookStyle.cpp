#include "platform/Look.h"
