#include "Quietlark/Surfaces/BreakScreen/OverlayLog.h"

#include "WumbleCore/Storage/Files.h"

#include <QStringDecoder>

#include <algorithm>

namespace quietlark::OverlayLog {

namespace {

std::vector<std::string_view> linesOf(std::string_view file) {
    std::vector<std::string_view> lines;
    while (!file.empty()) {
        const std::size_t end = std::min(file.find('\n'), file.size());
        if (end > 0) {
            lines.push_back(file.substr(0, end));
        }
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return lines;
}

bool isUtf8(const std::string& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(QByteArrayView(bytes));
    return !decoder.hasError() && !text.isNull();
}

} // namespace

std::string added(std::string_view file, wumble::Date now, const std::vector<std::string>& entry) {
    const auto lines = linesOf(file);
    const std::size_t first = lines.size() > keptLines ? lines.size() - keptLines : 0;
    std::string text;
    for (std::size_t place = first; place < lines.size(); ++place) {
        text.append(lines[place]).append("\n");
    }
    text += wumble::iso8601Text(now).value_or("?") + " ";
    for (const std::string& line : entry) {
        text += line + "\n";
    }
    return text;
}

void add(const std::filesystem::path& folder, wumble::Date now, const std::vector<std::string>& entry) {
    const auto file = folder / fileName;
    const auto before = wumble::readWholeFile(file);
    const bool isReadable = before && isUtf8(*before);
    wumble::replaceWholeFile(file, added(isReadable ? *before : "", now, entry));
}

} // namespace quietlark::OverlayLog
