#include "engine/widgets/layout/CompileLayout.h"

#include <utility>

#include "engine/widgets/layout/IniArchive.h"
#include "engine/widgets/layout/MemBlob.h"
#include "engine/window/GroupCtrl.h"

namespace korvane {

bool CompileLayout(CLQIniReadWrite& ini, CLQMemBlob& blob, LayoutProblem& problem) {
    if (!CheckIniTree(ini, kLayoutRoot, LayoutRule::Complete, problem))
        return false;
    CLQGroupCtrl root;
    if (!root.LoadCtrlFromIni(ini, kLayoutRoot)) {
        problem = {kLayoutRoot, "the outermost control must be a group"};
        return false;
    }
    CLQMemBlob compiled;
    if (!root.SaveCtrlToBin(compiled, 0) || compiled.ToBytes().empty()) {
        problem = {kLayoutRoot, "too many or too long properties"};
        return false;
    }
    blob = std::move(compiled);
    return true;
}

bool DecompileLayout(CLQMemBlob& blob, CLQIniReadWrite& ini) {
    CLQGroupCtrl root;
    return root.LoadCtrlFromBin(blob, 0) && root.SaveCtrlToIni(ini, kLayoutRoot);
}

}  // namespace korvane
