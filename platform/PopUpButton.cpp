#include "platform/PopUpButton.h"
