#include "ui/base/LinkOpener.h"

#include <gtest/gtest.h>

namespace cuebright {

TEST(LinkOpener, AddressesOpenAndScriptsDoNot)
{
    for (const auto target : {"http://example.org", "https://example.org/a?b=c#d", "HTTPS://Example.org",
             "mailto:a@b.de", "https://müller.example/ä", "file:///home/me/talk.pdf", "tel:+49301234",
             "meet://join?room=1", "ftp://example.org"})
        EXPECT_TRUE(isOpenableLink(target)) << target;
    for (const auto target : {"", "page", "/etc/passwd", "C:\\talk.pdf", "javascript:alert(1)", "data:text/html,x",
             "http:", "https://", "mailto:", " javascript:x", "http\n://a.b", "//a.b", "vbscript:x", "\x01http://a.b"})
        EXPECT_FALSE(isOpenableLink(target)) << target;
}

} // namespace cuebright
