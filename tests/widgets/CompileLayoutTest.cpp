#include <fstream>

#include "engine/widgets/layout/CompileLayout.h"

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class CompiledLayout : public WidgetsTest {
  protected:
    void WriteIni(const std::string& text) {
        std::ofstream(scene.DeviceFolder() / "layout.txt", std::ios::binary) << text;
        ini.SetFileName(L"\\layout.txt");
    }

    void ExpectProblem(const std::string& text, const std::wstring& section) {
        WriteIni(text);
        EXPECT_FALSE(CompileLayout(ini, blob, problem)) << text;
        EXPECT_EQ(problem.section, section) << text;
        EXPECT_FALSE(problem.message.empty());
        EXPECT_EQ(blob.GetRecordCount(), 0);
    }

    CLQIniReadWrite ini;
    CLQMemBlob blob;
    LayoutProblem problem;
};

TEST_F(CompiledLayout, HoldsTheControlsOfTheText) {
    WriteIni(
        "[Layout]\nkind=group\nx=0\ny=19\nwidth=800\nheight=60\nchildren=StInfo,BtnBack\n"
        "[StInfo]\nkind=static\nname=StInfo\nx=10\nlangid=3\n"
        "[BtnBack]\nkind=button\nname=BtnBack\nelement1.type=text\nelement1.text=Back\n");
    ASSERT_TRUE(CompileLayout(ini, blob, problem));
    EXPECT_EQ(blob.GetRecordCount(), 3);
    CLQGroupCtrl group;
    ASSERT_TRUE(group.LoadCtrlFromBin(blob, 0));
    group.BuildRelationNameToPtr();
    EXPECT_NE(group.FindCtrl(L"StInfo"), nullptr);
    auto* button = dynamic_cast<CLQButton*>(group.FindCtrl(L"BtnBack"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(static_cast<CLQTextElement*>(button->GetGUIElement(1))->GetText(), L"Back");
}

TEST_F(CompiledLayout, GoesBackIntoAText) {
    WriteIni("[Layout]\nkind=group\nchildren=a\n[a]\nkind=static\ntext=Hello\n");
    ASSERT_TRUE(CompileLayout(ini, blob, problem));
    CLQIniReadWrite text;
    text.SetFileName(L"\\back.txt");
    ASSERT_TRUE(DecompileLayout(blob, text));
    EXPECT_EQ(text.GetString(L"Layout.1", L"text", L""), L"Hello");
    CLQMemBlob again;
    ASSERT_TRUE(CompileLayout(text, again, problem));
    EXPECT_EQ(again.ToBytes(), blob.ToBytes());
    CLQMemBlob empty;
    EXPECT_FALSE(DecompileLayout(empty, text));
}

TEST_F(CompiledLayout, BoundsTheTextsThatCopiesOfASectionHave) {
    std::string text = "[Layout]\nkind=group\nchildren=a";
    for (int i = 0; i < 200; ++i)
        text += i % 2 ? ",a" : ",A";
    const std::string controls = "\n[a]\nkind=image\n";
    WriteIni(text + controls);
    EXPECT_TRUE(CompileLayout(ini, blob, problem)) << problem.message;
    EXPECT_EQ(blob.GetRecordCount(), 202);
    blob = CLQMemBlob();
    std::string comments;
    while (comments.size() < 400000)
        comments += "; as long as a text can get\n";
    ExpectProblem(text + controls + comments, L"a");
    EXPECT_EQ(problem.message, "too many copies of a section");
}

TEST_F(CompiledLayout, TellsWhichSectionIsWrong) {
    ExpectProblem("", L"Layout");
    ExpectProblem("[Layout]\nkind=static\n", L"Layout");
    ExpectProblem("[Layout]\nchildren=a\n[a]\nkind=static\n", L"Layout");
    ExpectProblem("[Layout]\nkind=group\nchildren=a,missing\n[a]\nkind=static\n", L"missing");
    ExpectProblem("[Layout]\nkind=group\nchildren=a\n[a]\nkind=warpdrive\n", L"a");
    ExpectProblem("[Layout]\nkind=group\nchildren=a\n[a]\nkind=4711\n", L"a");
    ExpectProblem("[Layout]\nkind=group\nchildren=a\n[a]\nkind=group\nchildren=a\n", L"a");
    ExpectProblem("[Layout]\nkind=group\nchildren=a\n[a]\nkind=group\nchildren=a\n", L"a");
}

}  // namespace
}  // namespace korvane::test
