#include "title/TitleDialog.h"
