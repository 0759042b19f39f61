#pragma once

namespace cuebright {

class Accessibility;
class Appearance;
class Clock;
class FileSystem;
class Log;
class MainQueue;
class Preferences;
class UuidSource;

/// The system services that the core uses. Each outlives every copy of this; main thread only.
struct Platform {
    Clock& clock;
    UuidSource& uuids;
    MainQueue& mainQueue;
    FileSystem& fileSystem;
    Preferences& preferences;
    Accessibility& accessibility;
    Appearance& appearance;
    Log& log;
};

} // namespace cuebright
