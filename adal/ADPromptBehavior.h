#pragma once

enum class ADPromptBehavior { Auto = 0, Always = 1 };  // Always: the sign-in page is shown in any case
