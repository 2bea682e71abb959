#include "platform/Spinner.h"
