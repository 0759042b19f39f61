#include "panel/LinkOpener.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(LinkOpener, OnlyTheWebAndMailOpen)
{
    for (const auto target : {"http://example.org", "https://example.org/a?b=c#d", "HTTPS://Example.org",
             "mailto:a@b.de", "https://müller.example/ä"})
        EXPECT_TRUE(isOpenableLink(target)) << target;
    for (const auto target : {"", "page", "/etc/passwd", "file:///etc/passwd", "javascript:alert(1)",
             "data:text/html,x", "ftp://example.org", "http:", "https://", "mailto:", "x-scheme:run", " javascript:x",
             "http\n://a.b", "//a.b", "vbscript:x", "\x01http://a.b"})
        EXPECT_FALSE(isOpenableLink(target)) << target;
}

} // namespace cuebright
