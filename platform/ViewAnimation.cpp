#include "platform/ViewAnimation.h"
