// The man page, made from the command line as it was announced, so that it can't fall behind it.
#include "cli/Kommandos.h"

#include <fmt/format.h>

#include <string>

namespace varnholt {
namespace {

// Text in troff: hyphens stay hyphens, backslashes are themselves, no line begins a request.
std::string Troff(const std::string& Text)
{
    std::string Ziel;
    bool        Zeilenanfang = true;
    for (const char c : Text) {
        if (Zeilenanfang && (c == '.' || c == '\''))
            Ziel += "\\&";
        Zeilenanfang = c == '\n';
        if (c == '\\')
            Ziel += "\\e";
        else if (c == '-')
            Ziel += "\\-";
        else
            Ziel += c;
    }
    return Ziel;
}

std::string Option_Name(const CLI::Option& o)
{
    std::string Name = o.get_positional() ? o.get_name(true) : o.get_name(false, true);
    if (!o.get_positional() && !o.get_type_name().empty() && o.get_expected_max() > 0)
        Name += " " + o.get_type_name();
    return Name;
}

std::string Optionen_Liste(const CLI::App& App)
{
    std::string Text;
    for (const CLI::Option* o : App.get_options())
        Text +=
            fmt::format(".TP\n.B {}\n{}\n", Troff(Option_Name(*o)), Troff(o->get_description()));
    return Text;
}

} // namespace

std::string Handbuch_Seite(const CLI::App& App)
{
    std::string Text = fmt::format(".TH VARNHOLT\\-CLI 1\n.SH NAME\nvarnholt\\-cli \\- {}\n"
                                   ".SH SYNOPSIS\n.B varnholt\\-cli\nCOMMAND [OPTIONS]\n"
                                   ".SH OPTIONS\n{}",
                                   Troff(App.get_description()),
                                   Optionen_Liste(App));
    Text += ".SH COMMANDS\n";
    for (const CLI::App* k : App.get_subcommands([](const CLI::App*) { return true; }))
        Text += fmt::format(".SS {}\n{}.\n{}",
                            Troff(k->get_name()),
                            Troff(k->get_description()),
                            Optionen_Liste(*k));
    return Text + ".SH NOTES\n" + Troff(App.get_footer()) + "\n";
}

} // namespace varnholt
