#include "model/file_job.h"
#include "model/program_state.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {
// Writes down what the window is told, in order, with the busy flag as it
// stood at that moment.
class OrderPlatform : public ScriptedPlatform {
public:
    explicit OrderPlatform(const DocumentState &document) : document_(document) {}
    std::vector<std::string> log;
    void setStatus(const std::string &text) override { log.push_back("status '" + text + "'" + busy()); }
    void setWaitCursor(bool waiting) override
    {
        log.push_back(std::string(waiting ? "wait" : "arrow") + busy());
    }

private:
    std::string busy() const { return document_.fileBusy ? " busy" : ""; }
    const DocumentState &document_;
};
} // namespace

TEST(FileJob, EachEndOrderAndAJobWithoutStatus)
{
    DocumentState document;
    OrderPlatform platform(document);
    {
        FileJob job(document, platform, "Loading");
        EXPECT_EQ(document.fileBusy, 1);
        job.finish();
        job.finish();
    }
    EXPECT_EQ(platform.log, (std::vector<std::string>{"status 'Loading'", "wait", "arrow", "status ''"}));

    platform.log.clear();
    {
        FileJob job(document, platform, "Importing", FileJobEnd::StatusThenCursor);
    }
    EXPECT_EQ(platform.log,
              (std::vector<std::string>{"status 'Importing'", "wait", "status '' busy", "arrow busy"}));
    EXPECT_EQ(document.fileBusy, 0);

    platform.log.clear();
    {
        FileJob job(document, platform);
    }
    EXPECT_EQ(platform.log, (std::vector<std::string>{"wait", "arrow"}));
}

TEST(FileJob, AnExceptionHandsTheWindowBack)
{
    DocumentState document;
    OrderPlatform platform(document);
    auto failingSave = [&] {
        FileJob job(document, platform, "Saving");
        throw std::runtime_error("disk gone");
    };
    EXPECT_THROW(failingSave(), std::runtime_error);
    EXPECT_EQ(document.fileBusy, 0);
    EXPECT_EQ(platform.log.back(), "status ''");
}
