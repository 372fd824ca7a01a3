#include <fstream>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class GroupLayout : public WidgetsTest {
  protected:
    GroupLayout() { std::filesystem::create_directories(LayoutFolder()); }

    std::filesystem::path LayoutFolder() const {
        return scene.DeviceFolder() / "NandFlash/Application/Resource/Layout";
    }

    void WriteIni(const std::string& text) {
        std::ofstream(scene.DeviceFolder() / "layout.txt", std::ios::binary) << text;
        ini.SetFileName(L"\\layout.txt");
    }

    /// A group at (20, 10) with a label and an inner group, which has a button.
    static CLQGroupCtrl* MakeSample() {
        auto* outer = new CLQGroupCtrl;
        outer->Create(20, 10, 150, 80);
        auto* label = new CLQStatic;
        label->Create(25, 12, 50, 20);
        label->SetCtrlName(L"StInfo");
        label->SetText(L"Title");
        outer->AddChild(label);
        auto* inner = new CLQGroupCtrl;
        inner->Create(100, 40, 60, 40);
        inner->SetCtrlName(L"GpIconInfo");
        auto* button = new CLQButton;
        button->Create(110, 45, 20, 20);
        button->SetCtrlName(L"BtnBack");
        button->SetText(L"Back");
        inner->AddChild(button);
        outer->AddChild(inner);
        return outer;
    }

    static _LQRect PlaceOf(CLQBaseCtrl* ctrl) {
        _LQRect place = {0, 0, 0, 0};
        if (ctrl) {
            ctrl->GetPos(place.left, place.top);
            ctrl->GetSize(place.right, place.bottom);
        }
        return place;
    }

    static std::vector<unsigned char> Kept(CLQGroupCtrl& group) {
        CLQMemBlob blob;
        EXPECT_TRUE(group.SaveCtrlToBin(blob, 0));
        return blob.ToBytes();
    }

    void SaveLayout(CLQGroupCtrl& group, const std::wstring& name) {
        CLQMemBlob blob;
        ASSERT_TRUE(group.SaveCtrlToBin(blob, 0));
        ASSERT_TRUE(blob.SaveFile((L"\\NandFlash\\Application\\Resource\\Layout\\" + name).c_str()));
    }

    CLQIniReadWrite ini;
};

#define EXPECT_PLACE(ctrl, x, y, width, height)      \
    do {                                             \
        const _LQRect place = PlaceOf(ctrl);         \
        EXPECT_EQ(place.left, x);                    \
        EXPECT_EQ(place.top, y);                     \
        EXPECT_EQ(place.right, width) << "width";    \
        EXPECT_EQ(place.bottom, height) << "height"; \
    } while (false)

TEST_F(GroupLayout, LoadsPositionsLooksAndChildrenFromAFile) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    SaveLayout(*sample, L"GpTitle.bin");
    CLQGroupCtrl group;
    ASSERT_TRUE(group.LoadGroupCtrlFromBin(L"GpTitle.bin"));
    EXPECT_PLACE(&group, 20, 10, 150, 80);
    ASSERT_EQ(group.GetChildCount(), 2);
    EXPECT_PLACE(group.GetChild(0), 25, 12, 50, 20);
    EXPECT_EQ(group.GetChild(0)->GetFatherGroup(), &group);
    EXPECT_EQ(dynamic_cast<CLQStatic&>(*group.GetChild(0)).GetText(), L"Title");
    auto& inner = dynamic_cast<CLQGroupCtrl&>(*group.GetChild(1));
    EXPECT_PLACE(&inner, 100, 40, 60, 40);
    EXPECT_PLACE(inner.GetChild(0), 110, 45, 20, 20);
    EXPECT_EQ(Kept(group), Kept(*sample));
}

TEST_F(GroupLayout, FindsAFileByItsPathToo) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    SaveLayout(*sample, L"GpTitle.bin");
    CLQGroupCtrl group;
    EXPECT_TRUE(group.LoadGroupCtrlFromBin(L"\\nandflash\\application\\resource\\layout\\gptitle.bin"));
    EXPECT_EQ(group.GetChildCount(), 2);
}

TEST_F(GroupLayout, KeepsWhatItHasWhenTheFileIsMissingOrDamaged) {
    const std::unique_ptr<CLQGroupCtrl> group(MakeSample());
    SaveLayout(*group, L"cut.bin");
    const auto cut = LayoutFolder() / "cut.bin";
    std::filesystem::resize_file(cut, std::filesystem::file_size(cut) - 1);
    std::ofstream(LayoutFolder() / "empty.bin").close();
    std::ofstream(LayoutFolder() / "text.bin") << "this is not a layout, however long the text may be";
    CLQStatic label;
    CLQMemBlob blob;
    ASSERT_TRUE(label.SaveCtrlToBin(blob, 0));
    ASSERT_TRUE(blob.SaveFile(L"\\NandFlash\\Application\\Resource\\Layout\\label.bin"));
    const std::vector<unsigned char> kept = Kept(*group);
    for (const wchar_t* file : {L"missing.bin", L"cut.bin", L"empty.bin", L"text.bin", L"label.bin", L"",
                                L"..\\", static_cast<const wchar_t*>(nullptr)})
        EXPECT_FALSE(group->LoadGroupCtrlFromBin(file));
    EXPECT_EQ(Kept(*group), kept);
}

TEST_F(GroupLayout, ReplacesTheChildrenThatItHas) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    SaveLayout(*sample, L"GpTitle.bin");
    CLQGroupCtrl group;
    CLQStatic onTheStack;
    group.AddChild(&onTheStack);
    group.AddChild(new CLQButton);
    ASSERT_TRUE(group.LoadGroupCtrlFromBin(L"GpTitle.bin"));
    ASSERT_TRUE(group.LoadGroupCtrlFromBin(L"GpTitle.bin"));
    EXPECT_EQ(group.GetChildCount(), 2);
    EXPECT_EQ(onTheStack.GetFatherGroup(), nullptr);
}

TEST_F(GroupLayout, ShowsWhatItLoadedInItsWindow) {
    MakeImage("a.lqi", 20, 20, kRed);
    auto* group = new CLQGroupCtrl;
    window.AddChild(group);
    WriteIni(
        "[g]\nkind=group\nx=10\ny=10\nwidth=50\nheight=50\nchildren=i\nfillbackground=1\n"
        "backgroundcolor=0,0,255,255\n[i]\nkind=image\nx=5\ny=6\nwidth=20\nheight=20\nimage=a.lqi\n");
    ASSERT_TRUE(group->LoadCtrlFromIni(ini, L"g"));
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(10, 10), kBlue);
    EXPECT_EQ(scene.PixelAt(14, 16), kBlue);
    EXPECT_EQ(scene.PixelAt(15, 16), kRed);
    EXPECT_EQ(scene.PixelAt(34, 35), kRed);
    EXPECT_EQ(scene.PixelAt(60, 60), kBlack);
}

TEST_F(GroupLayout, SurvivesTheWayThroughTextAndRecords) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    _LQColor color = {8, 8, 8, 100};
    sample->EnableBkgColor(true, &color);
    sample->SetBkgSurf(L"bkg.lqi");
    const std::vector<unsigned char> kept = Kept(*sample);
    ini.SetFileName(L"\\group.txt");
    ASSERT_TRUE(sample->SaveCtrlToIni(ini, L"Layout"));
    ini.Update();
    CLQIniReadWrite written;
    written.SetFileName(L"\\group.txt");
    CLQGroupCtrl fromIni;
    ASSERT_TRUE(fromIni.LoadCtrlFromIni(written, L"Layout"));
    EXPECT_EQ(Kept(fromIni), kept);
    EXPECT_EQ(written.GetString(L"Layout", L"children", L""), L"Layout.1, Layout.2");
    EXPECT_EQ(written.GetString(L"Layout.2.1", L"name", L""), L"BtnBack");
    EXPECT_EQ(written.GetInt(L"Layout.2.1", L"x", 0), 10) << "positions are relative to the group";
}

TEST_F(GroupLayout, MeasuresTheOutermostPositionFromTheGroupThatItIsIn) {
    CLQGroupCtrl outer;
    outer.Create(100, 200, 10, 10);
    auto* inner = new CLQGroupCtrl;
    outer.AddChild(inner);
    WriteIni("[g]\nkind=group\nx=1\ny=2\nchildren=s\n[s]\nkind=static\nx=3\ny=4\n");
    ASSERT_TRUE(inner->LoadCtrlFromIni(ini, L"g"));
    EXPECT_PLACE(inner, 101, 202, 0, 0);
    EXPECT_PLACE(inner->GetChild(0), 104, 206, 0, 0);
}

TEST_F(GroupLayout, PutsAChildWhosePositionIsNotToldIntoTheGroupsCorner) {
    WriteIni(
        "[g]\nkind=group\nx=100\ny=200\nchildren=s,h\n[s]\nkind=static\ny=4\n"
        "[h]\nkind=group\nchildren=s\n");
    CLQGroupCtrl group;
    ASSERT_TRUE(group.LoadCtrlFromIni(ini, L"g"));
    EXPECT_PLACE(group.GetChild(0), 100, 204, 0, 0);
    EXPECT_PLACE(group.GetChild(1), 100, 200, 0, 0);
    EXPECT_PLACE(dynamic_cast<CLQGroupCtrl*>(group.GetChild(1))->GetChild(0), 100, 204, 0, 0);
}

TEST_F(GroupLayout, KeepsPositionsInRangeWhateverTheLayoutSays) {
    CLQGroupCtrl outer;
    outer.Create(kMaxPosition, -kMaxPosition, 10, 10);
    auto* label = new CLQStatic;
    outer.AddChild(label);
    WriteIni("[s]\nkind=static\nx=2147483647\ny=-2147483648\nwidth=2147483647\nheight=-2147483648\n");
    ASSERT_TRUE(label->LoadCtrlFromIni(ini, L"s"));
    EXPECT_PLACE(label, kMaxPosition, -kMaxPosition, kMaxExtent, 0);
}

TEST_F(GroupLayout, PassesOverChildrenThatAreMissingOrOfAnUnknownKind) {
    WriteIni(
        "[g]\nkind=group\nchildren = a, , b,c,d ,\n[a]\nkind=static\nname=first\n[b]\nkind=warpdrive\n"
        "[d]\nkind=image\nname=last\n");
    CLQGroupCtrl group;
    ASSERT_TRUE(group.LoadCtrlFromIni(ini, L"g"));
    ASSERT_EQ(group.GetChildCount(), 2);
    EXPECT_EQ(group.GetChild(0)->GetCtrlName(), L"first");
    EXPECT_EQ(group.GetChild(1)->GetCtrlName(), L"last");
}

TEST_F(GroupLayout, MayUseASectionTwice) {
    WriteIni("[g]\nkind=group\nchildren=a,a\n[a]\nkind=static\n");
    CLQGroupCtrl group;
    ASSERT_TRUE(group.LoadCtrlFromIni(ini, L"g"));
    EXPECT_EQ(group.GetChildCount(), 2);
}

TEST_F(GroupLayout, RefusesACircleOfSections) {
    const std::unique_ptr<CLQGroupCtrl> group(MakeSample());
    const std::vector<unsigned char> kept = Kept(*group);
    WriteIni(
        "[g]\nkind=group\nx=99\nchildren=h\n[h]\nkind=group\nchildren=g,g,g,g\n[i]\nkind=group\nchildren="
        "i\n");
    EXPECT_FALSE(group->LoadCtrlFromIni(ini, L"g"));
    EXPECT_FALSE(group->LoadCtrlFromIni(ini, L"i"));
    EXPECT_EQ(Kept(*group), kept);
}

TEST_F(GroupLayout, RefusesMoreControlsThanItsBound) {
    std::string children = "a";
    for (int i = 1; i < CLQMemBlob::kMaxRecords - 1; ++i)
        children += ",a";
    WriteIni("[g]\nkind=group\nchildren=" + children + "\n[a]\nkind=static\n");
    CLQGroupCtrl group;
    EXPECT_TRUE(group.LoadCtrlFromIni(ini, L"g"));
    EXPECT_EQ(group.GetChildCount(), CLQMemBlob::kMaxRecords - 1);
    WriteIni("[g]\nkind=group\nchildren=" + children + ",a\n[a]\nkind=static\n");
    EXPECT_FALSE(group.LoadCtrlFromIni(ini, L"g"));
}

TEST_F(GroupLayout, RefusesToSaveATreeThatIsTooDeep) {
    auto outer = std::make_unique<CLQGroupCtrl>();
    CLQGroupCtrl* deepest = outer.get();
    for (int depth = 2; depth <= CLQMemBlob::kMaxDepth; ++depth) {
        auto* inner = new CLQGroupCtrl;
        deepest->AddChild(inner);
        deepest = inner;
    }
    ini.SetFileName(L"\\deep.txt");
    CLQMemBlob blob;
    EXPECT_TRUE(outer->SaveCtrlToBin(blob, 0));
    EXPECT_TRUE(outer->SaveCtrlToIni(ini, L"g"));
    CLQGroupCtrl loaded;
    EXPECT_TRUE(loaded.LoadCtrlFromIni(ini, L"g"));
    deepest->AddChild(new CLQStatic);
    CLQMemBlob other;
    EXPECT_FALSE(outer->SaveCtrlToBin(other, 0));
    EXPECT_FALSE(outer->SaveCtrlToIni(ini, L"g"));
}

TEST_F(GroupLayout, FindsControlsByNameAtAnyDepthOnceTheTableIsBuilt) {
    const std::unique_ptr<CLQGroupCtrl> group(MakeSample());
    EXPECT_EQ(group->FindCtrl(L"BtnBack"), nullptr) << "there is no table yet";
    group->BuildRelationNameToPtr();
    CLQBaseCtrl* button = group->FindCtrl(L"BtnBack");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->GetCtrlName(), L"BtnBack");
    EXPECT_EQ(group->FindCtrl(L"StInfo"), group->GetChild(0));
    EXPECT_EQ(group->FindCtrl(L"btnback"), nullptr);
    EXPECT_EQ(group->FindCtrl(L""), nullptr);
    EXPECT_EQ(group->FindCtrl(nullptr), nullptr);
    group->ReleaseRelationMap();
    EXPECT_EQ(group->FindCtrl(L"BtnBack"), nullptr);
}

TEST_F(GroupLayout, DoesNotFindAControlThatEnded) {
    const std::unique_ptr<CLQGroupCtrl> group(MakeSample());
    group->BuildRelationNameToPtr();
    delete group->FindCtrl(L"BtnBack");
    EXPECT_EQ(group->FindCtrl(L"BtnBack"), nullptr);
    EXPECT_NE(group->FindCtrl(L"StInfo"), nullptr);
}

TEST_F(GroupLayout, FindsTheFirstOfTwoControlsWithOneName) {
    CLQGroupCtrl group;
    auto* first = new CLQStatic;
    auto* second = new CLQStatic;
    first->SetCtrlName(L"twin");
    second->SetCtrlName(L"twin");
    group.AddChild(first);
    group.AddChild(second);
    group.BuildRelationNameToPtr();
    EXPECT_EQ(group.FindCtrl(L"twin"), first);
}

class Reloader : public CLQWindow {
  public:
    void OnReload(CLQButton*) { loaded = group->LoadGroupCtrlFromBin(L"GpTitle.bin"); }

    CLQGroupCtrl* group = nullptr;
    bool loaded = false;
};

TEST_F(GroupLayout, MayBeReloadedByAHandlerOfOneOfItsChildren) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    SaveLayout(*sample, L"GpTitle.bin");
    Reloader reloader;
    reloader.group = new CLQGroupCtrl;
    window.AddChild(reloader.group);
    ASSERT_TRUE(reloader.group->LoadGroupCtrlFromBin(L"GpTitle.bin"));
    reloader.group->BuildRelationNameToPtr();
    CLQBaseCtrl* button = reloader.group->FindCtrl(L"BtnBack");
    ASSERT_NE(button, nullptr);
    const LifeWatch life = button->WatchLife();
    button->AddCallBack(kEventReleased, &reloader, &Reloader::OnReload);
    scene.Press(115, 50);
    scene.Release(115, 50);
    EXPECT_TRUE(reloader.loaded);
    EXPECT_FALSE(life.IsAlive());
    EXPECT_EQ(reloader.group->GetChildCount(), 2);
    scene.Press(115, 50);
    scene.Release(115, 50);
}

/// Derives from the group, with a kind code of its own.
class Panel : public CLQGroupCtrl {
  public:
    Panel() { m_nKind = 993; }
};

TEST_F(GroupLayout, OfAPlainGroupFitsADerivedClassToo) {
    const std::unique_ptr<CLQGroupCtrl> sample(MakeSample());
    SaveLayout(*sample, L"GpTitle.bin");
    Panel panel;
    EXPECT_TRUE(panel.LoadGroupCtrlFromBin(L"GpTitle.bin"));
    EXPECT_EQ(panel.GetChildCount(), 2);
}

}  // namespace
}  // namespace korvane::test
