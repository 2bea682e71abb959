#include "platform/FrameLayout.h"
