#include "cli/commands/commands.h"

#include "cli/batchops.h"
#include "cli/linereader.h"

#include <unistd.h>

#include <array>
#include <cerrno>

namespace vl::cli {

namespace {

constexpr qsizetype longestLine = qsizetype(256) << 20;

/// Answers all whole lines that are there; false when nobody reads the replies any more.
bool answerLines(LineReader &reader, Console &console)
{
    QByteArray line;
    for (;;) {
        const LineReader::Kind kind = reader.next(line);
        if (kind == LineReader::Kind::More)
            return true;
        console.writeBytes(
            (kind == LineReader::Kind::Line ? batchReply(line) : batchReplyToLongLine()) + '\n');
        if (!console.flush())
            return false;
    }
}

} // namespace

ExitStatus runBatch(const Arguments &, Console &console)
{
    LineReader reader(longestLine);
    std::array<char, 1 << 16> buffer{};
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return console.fail(Arguments::tr("Cannot read from standard input."));
        if (count == 0)
            break;
        reader.add(QByteArrayView(buffer.data(), count));
        if (!answerLines(reader, console))
            return ExitStatus::Failed;
    }
    reader.end();
    return answerLines(reader, console) ? ExitStatus::Done : ExitStatus::Failed;
}

} // namespace vl::cli
