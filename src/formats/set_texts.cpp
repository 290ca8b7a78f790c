#include "formats/set_texts.h"

#include <array>
#include <cstdio>

namespace orbelle::formats {
namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";

std::string HexColor(graphics::Argb color) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%06X", color & 0xFFFFFF);
    return text.data();
}

bool IsContinuation(std::string_view text, std::size_t place) {
    return place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0) == 0x80;
}

// Bytes of the UTF-8 character that the text begins with; 0: there is none.
std::size_t CharacterLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80)
        return 1;
    if (!IsContinuation(text, 1) || first < 0xC2 || first > 0xF4)
        return 0;
    if (first < 0xE0)
        return 2;
    const auto second = static_cast<unsigned char>(text[1]);
    // Longer forms than needed, halves of pairs, and what is beyond the last character.
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
        (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F))
        return 0;
    if (!IsContinuation(text, 2))
        return 0;
    if (first < 0xF0)
        return 3;
    return IsContinuation(text, 3) ? 4 : 0;
}

std::string EscapedByte(char c) {
    if (c == '"' || c == '\\')
        return {'\\', c};
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7F)
        return {c};
    std::array<char, 7> text{};
    std::snprintf(text.data(), text.size(), "\\u%04X", static_cast<unsigned>(code));
    return text.data();
}

}  // namespace

std::string EscapedForJson(std::string_view text) {
    std::string escaped;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0)
            escaped += kReplacement;
        else if (length == 1)
            escaped += EscapedByte(text[0]);
        else
            escaped += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return escaped;
}

std::string AppIconContents() {
    return R"({
  "images" : [
    {
      "filename" : "icon-1024.png",
      "idiom" : "universal",
      "platform" : "ios",
      "size" : "1024x1024"
    }
  ],
  "info" : {
    "author" : "xcode",
    "version" : 1
  }
}
)";
}

std::string WebManifest(std::string_view name, graphics::Argb ground) {
    const std::string quoted = '"' + EscapedForJson(name) + '"';
    const std::string color = '"' + HexColor(ground) + '"';
    return "{\n  \"name\": " + quoted + ",\n  \"short_name\": " + quoted + R"(,
  "icons": [
    { "src": "icon-192.png", "sizes": "192x192", "type": "image/png" },
    { "src": "icon-512.png", "sizes": "512x512", "type": "image/png" },
    { "src": "icon-maskable-512.png", "sizes": "512x512", "type": "image/png", "purpose": "maskable" }
  ],
  "theme_color": )" +
           color + ",\n  \"background_color\": " + color + ",\n  \"display\": \"standalone\"\n}\n";
}

std::string WebHead() {
    return R"(<link rel="icon" href="/favicon.ico" sizes="16x16 32x32 48x48">
<link rel="icon" href="/icon-192.png" type="image/png" sizes="192x192">
<link rel="icon" href="/icon-512.png" type="image/png" sizes="512x512">
<link rel="apple-touch-icon" href="/apple-touch-icon.png">
<link rel="manifest" href="/site.webmanifest">
)";
}

std::string AdaptiveIcon() {
    return R"(<?xml version="1.0" encoding="utf-8"?>
<adaptive-icon xmlns:android="http://schemas.android.com/apk/res/android">
    <background android:drawable="@color/ic_launcher_background"/>
    <foreground android:drawable="@mipmap/ic_launcher_foreground"/>
</adaptive-icon>
)";
}

std::string AdaptiveBackground(graphics::Argb ground) {
    return R"(<?xml version="1.0" encoding="utf-8"?>
<resources>
    <color name="ic_launcher_background">)" +
           HexColor(ground) + "</color>\n</resources>\n";
}

}  // namespace orbelle::formats
