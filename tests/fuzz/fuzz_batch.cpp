#include "cli/batchops.h"
#include "cli/linereader.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdint>
#include <cstdlib>
#include <vector>

// The batch pipe: any bytes, in pieces of any size, give one reply a line, each a JSON object with
// either a result or an error. The operations that read and write projects are left out.

namespace {

using namespace vl::cli;

constexpr qsizetype longestLine = 4096;

const std::vector<BatchOp> &pureOps()
{
    static const std::vector<BatchOp> ops = [] {
        std::vector<BatchOp> all;
        for (const auto &group : {batchTextOps(), batchCalendarOps(), batchMergeOps()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return ops;
}

void demand(bool holds)
{
    if (!holds)
        std::abort();
}

void checkReply(const QByteArray &reply)
{
    demand(!reply.contains('\n'));
    const QJsonObject object = QJsonDocument::fromJson(reply).object();
    demand(object.contains(QLatin1String("result")) != object.contains(QLatin1String("error")));
}

/// What the lines of the whole input should be.
std::vector<QByteArray> plainLines(const QByteArray &input)
{
    std::vector<QByteArray> lines;
    for (const QByteArray &line : input.split('\n'))
        lines.push_back(line);
    if (lines.back().isEmpty())
        lines.pop_back();
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const qsizetype piece = qsizetype(data[0]) + 1;
    const QByteArray input(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const std::vector<QByteArray> expected = plainLines(input);

    LineReader reader(longestLine);
    std::size_t count = 0;
    QByteArray line;
    const auto readAll = [&] {
        for (;;) {
            const LineReader::Kind kind = reader.next(line);
            if (kind == LineReader::Kind::More)
                return;
            demand(count < expected.size());
            const QByteArray &wanted = expected[count++];
            demand((kind == LineReader::Kind::TooLong) == (wanted.size() > longestLine));
            if (kind == LineReader::Kind::TooLong)
                continue;
            demand(line == wanted);
            checkReply(batchReply(line, pureOps()));
        }
    };
    for (qsizetype at = 0; at < input.size(); at += piece) {
        reader.add(QByteArrayView(input).sliced(at, qMin(piece, input.size() - at)));
        readAll();
    }
    reader.end();
    readAll();
    demand(count == expected.size());
    return 0;
}
