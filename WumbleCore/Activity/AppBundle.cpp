#include "WumbleCore/Activity/AppBundle.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>

namespace wumble::AppBundle {

namespace {

constexpr std::string_view bundleEnding = ".app";
constexpr std::string_view helperEnding = " Helper";

std::vector<std::string_view> parts(std::string_view path) {
    std::vector<std::string_view> found;
    while (!path.empty()) {
        const auto part = path.substr(0, path.find('/'));
        if (!part.empty()) {
            found.push_back(part);
        }
        path.remove_prefix(std::min(part.size() + 1, path.size()));
    }
    return found;
}

std::string_view lastPart(std::string_view path) {
    const auto all = parts(path);
    return all.empty() ? std::string_view{} : all.back();
}

} // namespace

std::vector<std::string> appPaths(std::string_view executable) {
    std::vector<std::string> bundles;
    std::string prefix;
    for (const auto part : parts(executable)) {
        prefix.append("/").append(part);
        if (part.ends_with(bundleEnding)) {
            bundles.push_back(prefix);
        }
    }
    return bundles;
}

std::optional<std::string> outermostBundlePath(std::string_view executable) {
    auto bundles = appPaths(executable);
    return bundles.empty() ? std::nullopt : std::optional(std::move(bundles.front()));
}

std::optional<std::string> productName(std::string_view executable) {
    const auto bundle = outermostBundlePath(executable).value_or("");
    const auto product = withoutSuffix(withoutSuffix(lastPart(bundle), bundleEnding), helperEnding);
    const auto name = product.empty() ? lastPart(executable) : product;
    return name.empty() ? std::nullopt : std::optional<std::string>(name);
}

} // namespace wumble::AppBundle
