// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/ProcessName.h"
#include "platform/CoreServices/detail/SessionBus.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <unistd.h>

using testing::ElementsAre;

namespace {

TEST(ProcessNameTest, NamesTellTypeSignatureProcessAndSerialNumber) {
    const QString prefix = QStringLiteral("org.korvex.Process1.");
    const QString fields = QStringLiteral("t4150504C.s0000007F.p4711");
    EXPECT_EQ(formatProcessName({kApplication, 0x7F, 4711}), prefix + fields);
    for (const QString& digits : {fields, fields.toLower()})
        EXPECT_THAT(parseProcessName(prefix + digits),
                    testing::Optional(testing::FieldsAre(kApplication, 0x7Fu, 4711)));
    for (const char* other : {"t4150504C.s4B727678.p0", "t4150504C.s4B727678.p1\n",
                              "t4150504C.s4B727678.p2147483648", "t150504C.s4B727678.p1"})
        EXPECT_FALSE(parseProcessName(prefix + QLatin1String(other))) << other;

    const ProcessSerialNumber psn{0xFFFFFFFF, 42};
    EXPECT_EQ(parseUniqueName(QStringLiteral(":4294967295.42")), psn);
    EXPECT_EQ(formatUniqueName(psn), QStringLiteral(":4294967295.42"));
    for (const char* name : {":0.0", ":1.4294967296", ":1", ":1.2.3"})
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
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, "other")
            .registerService(name);
    }
};

TEST_F(ProcessesTest, ThisProcessTakesPartUnlessItsNameIsTaken) {
    ProcessSerialNumber self;
    ASSERT_TRUE(ownName(formatProcessName({kApplication, fourCharCode("test"), getpid()})));
    EXPECT_FALSE(takePart());
    EXPECT_EQ(GetCurrentProcess(&self), procNotFound);
    QDBusConnection::disconnectFromBus("other");
    ASSERT_TRUE(waitUntil([&] { return takePart() && GetCurrentProcess(&self) == noErr; }));
    EXPECT_EQ(formatUniqueName(self), sessionBus().baseService());
    EXPECT_THAT(walk(), ElementsAre(self));
}

} // namespace
