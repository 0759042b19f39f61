#pragma once

#include "platform/Desktop.h"
#include "platform/FileSystem.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace cuebright {

class Accessibility;
class Clock;
class MainQueue;
class QtAppearance;

// What Qt does not offer: defined once for each system, in its own folder.

/// The services of one system.
class SystemServices {
public:
    virtual ~SystemServices() = default;

    [[nodiscard]] virtual Clock& clock() = 0;
    [[nodiscard]] virtual Accessibility& accessibility() = 0;
    [[nodiscard]] virtual Desktop desktop() = 0;

    /// Begins what would hold up the first frame: questions to other processes. Call once, after that frame. Until
    /// then and until they answer, each service gives its most careful answer.
    virtual void start() = 0;
};

/// Call after the application object is made. What the system says about its light or dark look goes to `appearance`.
/// Both outlive the services.
[[nodiscard]] std::unique_ptr<SystemServices> makeSystemServices(QtAppearance& appearance, MainQueue& mainQueue);

/// Brings what was written to an open file to the disk; the reason when that fails. Silent where it cannot be asked.
[[nodiscard]] std::optional<FileError> syncFile(int fileDescriptor);

/// Brings a folder's entries to the disk, so that a file renamed into it outlives a power cut. Best effort.
void syncDirectory(const std::filesystem::path& directory);

} // namespace cuebright
