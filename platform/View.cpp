#include "platform/View.h"
