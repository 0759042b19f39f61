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

/// What the core asks of its surroundings. All of it outlives whatever holds this; main thread only.
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
