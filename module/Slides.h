#pragma once

#include "platform/Export.h"

class CLQBaseCtrl;
class CLQSurfHandle;
class CLQWindow;

/// Slides of a control within its own rectangle on the screen, into it from the left or out of it to the
/// left, fast at first and slow at the end. They paint straight to the screen and show the control's
/// rectangle after each frame.
///
/// A call returns when the last frame is shown. A frame takes 80 ms or what its painting takes, so that a
/// slide lasts at least `frames` times 80 ms: there is no bound but the number itself. Fewer than 1 frame
/// count as 1. Messages and timers wait meanwhile.
///
/// The control may be hidden or not, and of any owner; a null window or control makes the call do nothing.
/// The window collects no repaint rectangles during the slide, and does so afterwards. Once the slide has
/// ended the application shows or hides the control to make its state that of the picture.
extern "C" {

/// Behind the control shows `second`, which is taken to stand in the same place and in the same size; without
/// one what the screen shows (in) or the window's background (out).
KORVANEEX_API void MoveInOutCtrl(CLQWindow* window, CLQBaseCtrl* ctrl, CLQBaseCtrl* second, bool slideIn,
                                 int frames);

/// Behind the control shows a picture of the control's size; null shows none.
KORVANEEX_API void MoveInOutCtrl2(CLQWindow* window, CLQBaseCtrl* ctrl, CLQSurfHandle* background,
                                  bool slideIn, int frames);

/// Behind the control shows the window without it. The control is shown afterwards, also if it was hidden
/// before and if it slid out.
KORVANEEX_API void MoveInOutCtrl3(CLQWindow* window, CLQBaseCtrl* ctrl, bool slideIn, int frames);
}
