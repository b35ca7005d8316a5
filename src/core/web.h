// Locations for the system's shell.
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

// Every byte but letters, digits and -._~ as % and two hexadecimal digits (UTF-8 in, ASCII out).
std::string Prozent_Kodiert(std::string_view Text);
// A mailto location with subject and body ready.
std::string Mail_Ort(std::string_view Adresse, std::string_view Betreff, std::string_view Text);

} // namespace varnholt
