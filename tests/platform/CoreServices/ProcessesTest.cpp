#include "platform/CoreServices/ProcessName.h"
#include "platform/CoreServices/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QDBusConnection>
#include <gmock/gmock.h>

#include <memory>
#include <unistd.h>

using testing::ElementsAre;

namespace {

constexpr OSType kApplication = fourCharCode("APPL");

TEST(ProcessNameTest, NamesTellTypeSignatureAndProcess) {
    const QString agent = QStringLiteral("org.korvex.Process1.t4150504C.s4B727678.p4711");
    EXPECT_EQ(formatProcessName({kApplication, fourCharCode("Krvx"), 4711}), agent);
    EXPECT_EQ(formatProcessName({0, 0xAB, 1}),
              QStringLiteral("org.korvex.Process1.t00000000.s000000AB.p1"));
    for (const QString& name : {agent, agent.left(27) + agent.mid(27).toLower()}) {
        const auto process = parseProcessName(name);
        ASSERT_TRUE(process) << name.toStdString();
        EXPECT_EQ(process->type, kApplication);
        EXPECT_EQ(process->signature, fourCharCode("Krvx"));
        EXPECT_EQ(process->pid, 4711);
    }
}

TEST(ProcessNameTest, OtherFormsAreNoProcess) {
    for (const char* fields : {
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
             "tAPPL.sKrvx.p1",
             "4150504C.4B727678.1",
         }) {
        const QString name = QStringLiteral("org.korvex.Process1.") + QLatin1String(fields);
        EXPECT_FALSE(parseProcessName(name)) << fields;
    }
    EXPECT_FALSE(parseProcessName(QStringLiteral("org.korvex.Process2.t4150504C.s4B727678.p1")));
    EXPECT_FALSE(parseProcessName(QStringLiteral("xorg.korvex.Process1.t4150504C.s4B727678.p1")));
}

TEST(ProcessNameTest, UniqueNamesAreSerialNumbers) {
    const struct {
        const char* name;
        std::optional<ProcessSerialNumber> psn;
    } cases[] = {
        {":1.42", ProcessSerialNumber{1, 42}},
        {":0.1", ProcessSerialNumber{0, 1}},
        {":4294967295.4294967295", ProcessSerialNumber{0xFFFFFFFF, 0xFFFFFFFF}},
        {":0.0", std::nullopt}, // which is kNoProcess
        {":4294967296.1", std::nullopt},
        {":1.4294967296", std::nullopt},
        {":1", std::nullopt},
        {"1.2", std::nullopt},
        {":1.2.3", std::nullopt},
        {":1.2\n", std::nullopt},
        {":1.-2", std::nullopt},
        {":a.b", std::nullopt},
        {"", std::nullopt},
    };

    for (const auto& row : cases) {
        EXPECT_EQ(parseUniqueName(QLatin1String(row.name)), row.psn) << row.name;
        if (row.psn) {
            EXPECT_EQ(formatUniqueName(*row.psn), QLatin1String(row.name));
        }
    }
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
};

TEST_F(ProcessesTest, TheWalkFollowsOthersThatComeAndGoWithoutTheEventLoop) {
    TestPeer agent(kApplication, fourCharCode("Krvx"));
    EXPECT_THAT(walk(), ElementsAre(agent.psn())) << "there before the first look";
    TestPeer tool(fourCharCode("tool"), fourCharCode("Krvx"));
    auto other = std::make_unique<TestPeer>();
    ASSERT_TRUE(waitUntil([] { return walk().size() == 3; }));
    EXPECT_THAT(walk(), ElementsAre(agent.psn(), tool.psn(), other->psn()));

    for (const auto& [peer, type] :
         {std::pair(&agent, kApplication), {&tool, fourCharCode("tool")}}) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        ASSERT_EQ(GetProcessInformation(&peer->psn(), &info), noErr);
        EXPECT_EQ(info.processType, type);
        EXPECT_EQ(info.processSignature, fourCharCode("Krvx"));
        pid_t pid = 0;
        EXPECT_EQ(GetProcessPID(&peer->psn(), &pid), noErr);
        EXPECT_EQ(pid, peer->pid());
    }

    tool.signal(SIGKILL);
    other.reset();
    ASSERT_TRUE(waitUntil([] { return walk().size() == 1; }));
    pid_t pid = 0;
    ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
    EXPECT_EQ(GetProcessPID(&tool.psn(), &pid), procNotFound);
    EXPECT_EQ(GetProcessInformation(&tool.psn(), &info), procNotFound);
    ProcessSerialNumber next = tool.psn(); // one can walk on from where one was
    EXPECT_EQ(GetNextProcess(&next), procNotFound);
    next = {0, 0};
    EXPECT_EQ(GetNextProcess(&next), noErr);
    EXPECT_EQ(next, agent.psn());
}

TEST_F(ProcessesTest, ThisProcessTakesPartOnceItHasSaidSo) {
    ProcessSerialNumber self;
    EXPECT_EQ(GetCurrentProcess(&self), procNotFound);
    ASSERT_TRUE(takePart());
    EXPECT_TRUE(takePart()) << "again";
    ASSERT_TRUE(waitUntil([&] { return GetCurrentProcess(&self) == noErr; }));
    EXPECT_EQ(formatUniqueName(self), sessionBus().baseService());
    EXPECT_THAT(walk(), ElementsAre(self));
    pid_t pid = 0;
    EXPECT_EQ(GetProcessPID(&self, &pid), noErr);
    EXPECT_EQ(pid, getpid());
}

TEST_F(ProcessesTest, ATakenNameIsntTakenOver) {
    auto other =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
    ASSERT_TRUE(
        other.registerService(formatProcessName({kApplication, fourCharCode("test"), getpid()})));
    EXPECT_FALSE(takePart());
    ProcessSerialNumber self;
    EXPECT_EQ(GetCurrentProcess(&self), procNotFound);
}

TEST_F(ProcessesTest, NamesOfOtherFormsAreIgnoredWhenTheyComeAndGo) {
    auto other =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
    const auto name = QStringLiteral("org.korvex.Process1.tAPPL.sKrvx.p1");
    ASSERT_TRUE(other.registerService(name));
    EXPECT_THAT(walk(), testing::IsEmpty());
    other.unregisterService(name);
    other.registerService(name);
    TestPeer peer; // announced after them
    ASSERT_TRUE(waitUntil([] { return !walk().empty(); }));
    EXPECT_THAT(walk(), ElementsAre(peer.psn()));
}

TEST_F(ProcessesTest, RefusesWrongArguments) {
    ASSERT_TRUE(takePart());
    ProcessSerialNumber self;
    ASSERT_TRUE(waitUntil([&] { return GetCurrentProcess(&self) == noErr; }));
    for (const UInt32 length : {0u, 59u, 61u}) {
        ProcessInfoRec info{.processInfoLength = length};
        EXPECT_EQ(GetProcessInformation(&self, &info), paramErr) << length;
    }
    pid_t pid = 0;
    EXPECT_EQ(GetProcessInformation(&self, nullptr), paramErr);
    EXPECT_EQ(GetProcessPID(&kNoProcess, &pid), procNotFound);
    EXPECT_EQ(GetProcessPID(nullptr, &pid), procNotFound);
    EXPECT_EQ(GetNextProcess(nullptr), procNotFound);
    EXPECT_EQ(GetCurrentProcess(nullptr), procNotFound);
}

} // namespace
