#pragma once

#include "Quietlark/Platform/LoginItem.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quietlark {

/// A file in the session's autostart folder that starts the program.
class AutostartEntry final : public LoginItem {
public:
    /// `folder`: where the session looks for such files; made when it is first needed. `program`: the full path of
    /// this program. `home`: of the person.
    AutostartEntry(const std::filesystem::path& folder, std::filesystem::path program,
                   std::filesystem::path home);

    /// That of this session and this process.
    static std::unique_ptr<LoginItem> ofThisSession();

    bool isEnabled() const override;
    bool canRegister() const override;
    std::optional<std::string> set(bool on) override;

private:
    std::string contents() const;

    std::filesystem::path file_;
    std::filesystem::path program_;
    std::filesystem::path home_;
};

} // namespace quietlark
