#include "platform/CoreServices/ProcessName.h"
#include "platform/CoreServices/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <gmock/gmock.h>

#include <memory>
#include <unistd.h>

using testing::ElementsAre;

namespace {

constexpr OSType kApplication = fourCharCode("APPL");
constexpr OSType kTool = fourCharCode("tool");

TEST(ProcessNameTest, NamesTellTypeSignatureAndProcess) {
    const QString prefix = QStringLiteral("org.korvex.Process1.");
    const QString fields = QStringLiteral("t4150504C.s0000007F.p4711");
    EXPECT_EQ(formatProcessName({kApplication, 0x7F, 4711}), prefix + fields);
    for (const QString& digits : {fields, fields.toLower()}) {
        const auto process = parseProcessName(prefix + digits);
        ASSERT_TRUE(process);
        EXPECT_EQ(process->type, kApplication);
        EXPECT_EQ(process->signature, 0x7Fu);
        EXPECT_EQ(process->pid, 4711);
    }
    for (const char* other : {
             "",
             "t4150504C",
             "t4150504C.s4B727678",
             "s4B727678.t4150504C.p1",
             "t4150504C.s4B727678.p",
             "t4150504C.s4B727678.p0",
             "t4150504C.s4B727678.p01",
             "t4150504C.s4B727678.p-1",
             "t4150504C.s4B727678.p1x",
             "t4150504C.s4B727678.p1.x",
             "t4150504C.s4B727678.p1\n",
             "t4150504C.s4B727678.p2147483648",
             "t150504C.s4B727678.p1",
             "t04150504C.s4B727678.p1",
             "t4150504G.s4B727678.p1",
         })
        EXPECT_FALSE(parseProcessName(prefix + QLatin1String(other))) << other;
    EXPECT_FALSE(parseProcessName(QStringLiteral("org.korvex.Process2.") + fields));
    EXPECT_FALSE(parseProcessName(QLatin1Char('x') + prefix + fields));
}

TEST(ProcessNameTest, UniqueNamesAreSerialNumbers) {
    for (const auto& [name, psn] : {std::pair(":1.42", ProcessSerialNumber{1, 42}),
                                    {":0.1", {0, 1}},
                                    {":4294967295.0", {0xFFFFFFFF, 0}}}) {
        EXPECT_EQ(parseUniqueName(QLatin1String(name)), psn);
        EXPECT_EQ(formatUniqueName(psn), QLatin1String(name));
    }
    for (const char* name : {":0.0", ":4294967296.1", ":1.4294967296", ":1", "1.2", ":1.2.3",
                             ":1.2\n", ":1.-2", ":a.b", ""})
        EXPECT_FALSE(parseUniqueName(QLatin1String(name))) << name;
}

class ProcessesTest : public ProcessTest {
protected:
    /// The processes that take part, in the order of the walk.
    static std::vector<ProcessSerialNumber> walk() {
        std::vector<ProcessSerialNumber> processes;
        for (ProcessSerialNumber psn = kNoProcess; GetNextProcess(&psn) == noErr;)
            processes.push_back(psn);
        return processes;
    }

    static bool ownName(const QString& name) {
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"))
            .registerService(name);
    }
};

TEST_F(ProcessesTest, TheWalkFollowsOthersThatComeAndGoWithoutTheEventLoop) {
    TestPeer agent;
    EXPECT_THAT(walk(), ElementsAre(agent.psn())) << "there before the first look";
    TestPeer tool(kTool);
    auto other = std::make_unique<TestPeer>();
    ASSERT_TRUE(waitUntil([] { return walk().size() == 3; }));
    EXPECT_THAT(walk(), ElementsAre(agent.psn(), tool.psn(), other->psn()));

    pid_t pid = 0;
    ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
    for (const auto& [peer, type] : {std::pair(&agent, kApplication), {&tool, kTool}}) {
        ASSERT_EQ(GetProcessInformation(&peer->psn(), &info), noErr);
        EXPECT_EQ(info.processType, type);
        EXPECT_EQ(info.processSignature, fourCharCode("peer"));
        EXPECT_EQ(GetProcessPID(&peer->psn(), &pid), noErr);
        EXPECT_EQ(pid, peer->pid());
    }
    info.processInfoLength = 59;
    EXPECT_EQ(GetProcessInformation(&agent.psn(), &info), paramErr);
    info.processInfoLength = kProcessInfoRecLength;

    tool.signal(SIGKILL);
    other.reset();
    ASSERT_TRUE(waitUntil([] { return walk().size() == 1; }));
    EXPECT_THAT(walk(), ElementsAre(agent.psn()));
    EXPECT_EQ(GetProcessPID(&tool.psn(), &pid), procNotFound);
    EXPECT_EQ(GetProcessInformation(&tool.psn(), &info), procNotFound);
}

TEST_F(ProcessesTest, ThisProcessTakesPartOnceItHasSaidSo) {
    ProcessSerialNumber self;
    EXPECT_EQ(GetCurrentProcess(&self), procNotFound);
    ASSERT_TRUE(takePart());
    EXPECT_TRUE(takePart()) << "again";
    ASSERT_TRUE(waitUntil([&] { return GetCurrentProcess(&self) == noErr; }));
    EXPECT_EQ(formatUniqueName(self), sessionBus().baseService());
    EXPECT_THAT(walk(), ElementsAre(self));
}

TEST_F(ProcessesTest, ATakenNameIsntTakenOver) {
    ASSERT_TRUE(ownName(formatProcessName({kApplication, fourCharCode("test"), getpid()})));
    EXPECT_FALSE(takePart());
    ProcessSerialNumber self;
    EXPECT_EQ(GetCurrentProcess(&self), procNotFound);
}

TEST_F(ProcessesTest, NamesOfOtherFormsAreIgnoredBeforeAndAfterTheFirstLook) {
    ASSERT_TRUE(ownName(QStringLiteral("org.korvex.Process1.tAPPL.sKrvx.p1")));
    EXPECT_THAT(walk(), testing::IsEmpty());
    ASSERT_TRUE(ownName(QStringLiteral("org.korvex.Process1.tAPPL.sKrvx.p2")));
    const TestPeer peer; // announced after it
    ASSERT_TRUE(waitUntil([] { return !walk().empty(); }));
    EXPECT_THAT(walk(), ElementsAre(peer.psn()));
}

} // namespace
