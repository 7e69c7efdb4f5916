/// Members of the classes that hosts create beside the control.
#include "automation/describe_member.h"
#include "automation/member_table.h"
#include "guards/error.h"
#include "helpers/sp_ev.h"

namespace lumtex::automation {

namespace {

using namespace detail;

constexpr auto ofSpEv = std::to_array<Member>({
    method<&SpEv::TextRead>(
        1,
        u"TextRead",
        Repaint::never,
        {u"The whole of a text file; the empty text where it cannot be read.",
         u"Der gesamte Text einer Datei; der leere Text, wenn sie nicht gelesen werden kann."},
        {u"Filename"}),
    method<&SpEv::TextSave>(2,
                            u"TextSave",
                            Repaint::never,
                            {u"Replaces a file by a text, without a line end behind it.",
                             u"Ersetzt eine Datei durch einen Text, ohne Zeilenende dahinter."},
                            {u"Filename", u"Text"}),
    method<&SpEv::PlayMusic>(3,
                             u"PlayMusic",
                             Repaint::never,
                             {u"Starts a sound file and returns at once; silent where it cannot be played.",
                              u"Startet eine Klangdatei und kehrt sofort zurück; bleibt stumm, wenn sie sich "
                              u"nicht abspielen lässt."},
                             {u"Filename"}),
    method<&SpEv::ListSave>(
        4,
        u"ListSave",
        Repaint::never,
        {u"Replaces a file by one line for each entry of a list box. At most 32,768 entries are written.",
         u"Ersetzt eine Datei durch je eine Zeile für jeden Eintrag eines Listenfelds. Höchstens 32.768 "
         u"Einträge werden geschrieben."},
        {u"List", u"Filename", orText(u"TextBeforeListText", u""), orText(u"TextAfterListText", u"")}),
    method<&SpEv::ListRead>(
        5,
        u"ListRead",
        Repaint::never,
        {u"Adds each line of a file to a list box, which is not cleared before.",
         u"Fügt jede Zeile einer Datei einem Listenfeld hinzu, das zuvor nicht geleert wird."},
        {u"List", u"Filename"}),
    method<&SpEv::FileExists>(6,
                              u"FileExists",
                              Repaint::never,
                              {u"Whether a file or folder is found. The last part may hold wild cards.",
                               u"Gibt an, ob eine Datei oder ein Ordner gefunden wird. Der letzte Teil darf "
                               u"Platzhalter enthalten."},
                              {u"sFile"}),
    method<&SpEv::ActiveXPTheme>(7,
                                 u"ActiveXPTheme",
                                 Repaint::never,
                                 {u"The colour scheme of the desktop; styleClassic where no theme is active.",
                                  u"Das Farbschema des Desktops; styleClassic, wenn kein Design aktiv ist."}),
    method<&SpEv::MouseButtonPressed>(8,
                                      u"MouseButtonPressed",
                                      Repaint::never,
                                      {u"The button that is down, left before right before middle. The "
                                       u"middle one gives 4, not mouseMiddle.",
                                       u"Die gedrückte Maustaste, links vor rechts vor der mittleren. Die "
                                       u"mittlere ergibt 4, nicht mouseMiddle."}),
});

constexpr auto ofError = std::to_array<Member>({
    property<&Error::SilentError, &Error::letSilentError>(
        1,
        u"SilentError",
        Repaint::never,
        {u"While True, a failing statement is skipped without a report, in all lists of the process.",
         u"Solange True, wird eine fehlgeschlagene Anweisung ohne Meldung übergangen, in allen Listen des "
         u"Prozesses."}),
});

} // namespace

std::span<const Member> spEvMembers() {
    return ofSpEv;
}

std::span<const Member> errorMembers() {
    return ofError;
}

} // namespace lumtex::automation
