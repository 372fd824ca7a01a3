#pragma once

/// The control library and the engine under it.

#include "controls/ButtonTree.h"
#include "controls/DialScaleEx.h"
#include "controls/DialSlider.h"
#include "controls/FileView.h"
#include "controls/FreqStruct.h"
#include "controls/MenuItemCtrl.h"
#include "controls/NumSlider.h"
#include "controls/SliderExCtrl.h"
#include "controls/SwitchList.h"
#include "engine/Korvane.h"
#include "module/MessageLoop.h"
#include "module/Slides.h"
#include "module/SysBeep.h"
#include "module/ThumbNail.h"
#include "sysinfo/MainApplication.h"
#include "sysinfo/ShareMemLink.h"
#include "sysinfo/SysInfo.h"
#include "title/TitleDialog.h"
