#pragma once

#include <string>

namespace wayscribe {

struct DocumentState;
class Platform;

// How a file job hands the window back. Most jobs clear FileBusy, restore
// the cursor and then empty the status line; a report import empties the
// status line first and clears FileBusy last.
enum class FileJobEnd { CursorThenStatus, StatusThenCursor };

// FileBusy held for the length of a file job: the constructor shows the
// job's status text (when it has one), the wait cursor and sets FileBusy;
// finish(), or the destructor on an early return or an exception, undoes
// them in the job's order. The status line is emptied only by a job that
// wrote to it.
class FileJob {
public:
    FileJob(DocumentState &document, Platform &platform, std::string status = {},
            FileJobEnd end = FileJobEnd::CursorThenStatus);
    ~FileJob();
    FileJob(const FileJob &) = delete;
    FileJob &operator=(const FileJob &) = delete;

    // Ends the job now; later calls do nothing.
    void finish();

private:
    DocumentState &document_;
    Platform &platform_;
    bool showsStatus_;
    FileJobEnd end_;
    bool running_ = true;
};

} // namespace wayscribe
