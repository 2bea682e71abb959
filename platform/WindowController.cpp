#include "platform/WindowController.h"
