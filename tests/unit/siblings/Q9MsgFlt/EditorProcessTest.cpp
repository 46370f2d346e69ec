// The editor in a process that has no Qt application, and the library bound
// at run time as the system binds it.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QProcess>

#include "MsgFltTestSupport.h"
#include "Q9MsgFlt.h"
#include "support/TestPaths.h"

namespace {

class EditorProcessTest : public MsgFltTest {};

}  // namespace

TEST_F(EditorProcessTest, EditorMakesAnApplicationWhenTheProcessHasNone) {
    QProcess helper;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("Q9_INSTALL_DIR", QString::fromStdString(install.Directory()));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    helper.setProcessEnvironment(environment);
    helper.start(QString::fromStdString(TestPath("helpers") + "/q9_q9msgflt_helper"), {});
    ASSERT_TRUE(helper.waitForFinished(30000));
    EXPECT_EQ(helper.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(helper.exitCode(), 0) << helper.readAllStandardError().toStdString();
    EXPECT_EQ(RulesText(),
              "Q9MsgFlt Rules 1\n\n[Rule]\nName=From the helper\nField=Subject\nWords=helper\n"
              "Action=Spam\nEnabled=Yes\n");
}

TEST_F(EditorProcessTest, ExportsWorkWhenLoadedByName) {
    WriteRules(kTwoRules);
    void* library =
        dlopen((TestPath("library") + "/libQ9MsgFlt.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    using Call = int32_t (*)();
    using Apply = int32_t (*)(uint32_t, uint32_t);
    const auto init = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_InitManager"));
    const auto release = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_ReleaseManager"));
    const auto property = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_DoProperty"));
    const auto apply = reinterpret_cast<Apply>(dlsym(library, "PFN_ApplyRules"));
    const auto reload = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_ReloadManager"));
    const auto write = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_WriteRules"));
    const auto count = reinterpret_cast<Call>(dlsym(library, "Q9MsgFltAPI_GetRuleCount"));
    ASSERT_TRUE(init && release && property && apply && reload && write && count);

    ASSERT_EQ(init(), 1);
    EXPECT_EQ(count(), 2);
    WhenModal([](QDialog* editor) { Press(editor, QDialogButtonBox::Cancel); });
    EXPECT_EQ(property(), 0);
    EXPECT_EQ(apply(0, 0), Q9MSGFLT_NO_MATCH);
    EXPECT_EQ(reload(), 1);
    std::filesystem::remove(RulesPath());
    EXPECT_EQ(write(), 1);
    EXPECT_EQ(RulesText(), kTwoRules);
    EXPECT_EQ(release(), 1);
    EXPECT_EQ(count(), 0);
    dlclose(library);
}
