<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>Empty slot</source>
        <translation>Leerer Platz</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Blättern</translation>
    </message>
    <message>
        <source>Pg up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Pg down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Runter</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>R-click</source>
        <translation>R-Klick</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Nochmals</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>No X11 display can be reached.</source>
        <translation>Es ist kein X11-Bildschirm erreichbar.</translation>
    </message>
    <message>
        <source>The X11 display has no %1, which scanning needs.</source>
        <translation>Dem X11-Bildschirm fehlt %1. Das Scannen braucht es.</translation>
    </message>
    <message>
        <source>Another program scans already.</source>
        <translation>Ein anderes Programm scannt schon.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan: no process can be started.</source>
        <translation>Korvex kann nicht scannen: Es lässt sich kein Prozess starten.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again.</source>
        <translation>Das Scannen ist aus. Halten Sie den Schalter vier Sekunden, um es wieder einzuschalten.</translation>
    </message>
    <message>
        <source>Another program has these keys: %1. Choose others under Presses.</source>
        <translation>Ein anderes Programm hat diese Tasten: %1. Wählen Sie andere unter „Drücken“.</translation>
    </message>
    <message>
        <source>Scanning is on.</source>
        <translation>Das Scannen ist eingeschaltet.</translation>
    </message>
    <message>
        <source>No window is active.</source>
        <translation>Kein Fenster ist aktiv.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t close windows for others.</source>
        <translation>Die Fensterverwaltung kann keine Fenster für andere schließen.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t show the desktop.</source>
        <translation>Die Fensterverwaltung kann den Desktop nicht zeigen.</translation>
    </message>
    <message>
        <source>The scan is as fast as it can be.</source>
        <translation>Schneller kann der Scan nicht werden.</translation>
    </message>
    <message>
        <source>The scan is as slow as it can be.</source>
        <translation>Langsamer kann der Scan nicht werden.</translation>
    </message>
    <message>
        <source>A terminal can&apos;t cut. Choose Copy.</source>
        <translation>Ein Terminal kann nicht ausschneiden. Wählen Sie „Kopieren“.</translation>
    </message>
    <message>
        <source>A terminal can&apos;t undo.</source>
        <translation>Ein Terminal kann nichts rückgängig machen.</translation>
    </message>
    <message>
        <source>This terminal can&apos;t copy for other programs.</source>
        <translation>Dieses Terminal kann nicht für andere Programme kopieren.</translation>
    </message>
    <message>
        <source>The volume needs pactl. Install pulseaudio-utils.</source>
        <translation>Die Lautstärke braucht pactl. Installieren Sie pulseaudio-utils.</translation>
    </message>
    <message>
        <source>No sound server answers.</source>
        <translation>Kein Tondienst antwortet.</translation>
    </message>
    <message>
        <source>The keyboard has no key for %1.</source>
        <translation>Die Tastatur hat keine Taste für %1.</translation>
    </message>
    <message>
        <source>To type on the screen, install Onboard.</source>
        <translation>Um auf dem Bildschirm zu tippen, installieren Sie Onboard.</translation>
    </message>
    <message>
        <source>Onboard, the keyboard on the screen, doesn&apos;t start.</source>
        <translation>Onboard, die Tastatur auf dem Bildschirm, startet nicht.</translation>
    </message>
    <message>
        <source>This desktop has no menu of applications that Korvex can open.</source>
        <translation>Dieser Desktop hat kein Anwendungsmenü, das Korvex öffnen kann.</translation>
    </message>
    <message>
        <source>No window is open.</source>
        <translation>Es ist kein Fenster offen.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t bring windows to the front.</source>
        <translation>Die Fensterverwaltung kann keine Fenster nach vorn holen.</translation>
    </message>
    <message>
        <source>The menu doesn&apos;t open.</source>
        <translation>Das Menü öffnet sich nicht.</translation>
    </message>
    <message>
        <source>This window has no menu that Korvex can open.</source>
        <translation>Dieses Fenster hat kein Menü, das Korvex öffnen kann.</translation>
    </message>
    <message>
        <source>Scanning pauses. Hold your switch for four seconds to go on.</source>
        <translation>Das Scannen ruht. Halten Sie den Schalter vier Sekunden, um weiterzumachen.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan: the desktop refuses its remote control.</source>
        <translation>Korvex kann nicht scannen: Der Desktop verweigert seine Fernsteuerung.</translation>
    </message>
    <message>
        <source>Korvex hears no switch yet: the desktop&apos;s shortcuts must tell it of presses. The help says how, under &quot;On Wayland&quot;.</source>
        <translation>Korvex hört noch keinen Schalter: Tastenkürzel des Desktops müssen es ihm sagen. Wie, steht in der Hilfe: „Unter Wayland“.</translation>
    </message>
    <message>
        <source>The Wayland session can&apos;t be reached.</source>
        <translation>Die Wayland-Sitzung ist nicht zu erreichen.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan in this Wayland session: it has no %1. Log out, and choose a session with X11 where you log in.</source>
        <translation>Korvex kann in dieser Wayland-Sitzung nicht scannen: Ihr fehlt %1. Melden Sie sich ab, und wählen Sie beim Anmelden eine Sitzung mit X11.</translation>
    </message>
    <message>
        <source>The desktop doesn&apos;t tell when your switch comes up. Only &quot;Press to start, press to choose&quot; works, with short presses.</source>
        <translation>Der Desktop sagt nicht, wann Sie loslassen. Nur „Drücken zum Starten, drücken zum Wählen“ geht, mit kurzem Drücken.</translation>
    </message>
    <message>
        <source>To type on the screen, install Squeekboard and have it started at login.</source>
        <translation>Um auf dem Bildschirm zu tippen, installieren Sie Squeekboard und lassen Sie es bei der Anmeldung starten.</translation>
    </message>
    <message>
        <source>Squeekboard, the keyboard on the screen, doesn&apos;t answer.</source>
        <translation>Squeekboard, die Bildschirmtastatur, antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 wird %3</translation>
    </message>
    <message>
        <source>%1: %2 back to %3</source>
        <translation>%1: %2 wird wieder %3</translation>
    </message>
    <message>
        <source>Reset everything</source>
        <translation>Alles zurücksetzen</translation>
    </message>
    <message>
        <source>Nothing to reset</source>
        <translation>Nichts zurückzusetzen</translation>
    </message>
    <message>
        <source>Reset everything: 1 setting</source>
        <translation>Alles zurücksetzen: 1 Einstellung</translation>
    </message>
    <message numerus="yes">
        <source>Reset everything: %n settings</source>
        <translation>
            <numerusform>Alles zurücksetzen: %n Einstellung</numerusform>
            <numerusform>Alles zurücksetzen: %n Einstellungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset 1 setting</source>
        <translation>1 Einstellung zurücksetzen</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings</source>
        <translation>
            <numerusform>%n Einstellung zurücksetzen</numerusform>
            <numerusform>%n Einstellungen zurücksetzen</numerusform>
        </translation>
    </message>
    <message>
        <source>The palette has its original buttons again.</source>
        <translation>Die Palette hat wieder ihre ursprünglichen Knöpfe.</translation>
    </message>
    <message>
        <source>%1, and 1 more setting</source>
        <translation>%1, und 1 weitere Einstellung</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more settings</source>
        <translation>
            <numerusform>%1, und %n weitere Einstellung</numerusform>
            <numerusform>%1, und %n weitere Einstellungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset “%1” to its default</source>
        <translation>„%1“ auf den Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Reset “%1” to %3</source>
        <translation>„%1“ zurücksetzen auf %3</translation>
    </message>
    <message>
        <source>Undo this</source>
        <translation>Dies rückgängig machen</translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Drücken zum Starten, drücken zum Wählen</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Halten zum Scannen, loslassen zum Wählen</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Jeder Druck geht einen Schritt weiter</translation>
    </message>
    <message>
        <source>When I press</source>
        <translation>Wenn ich drücke</translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation>Wenn ich loslasse</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Der ganze Bildschirm</translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation>Nur mein eigener Bereich</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Rund</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>%1, very light</source>
        <translation>%1, sehr hell</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>%1, light</source>
        <translation>%1, hell</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>%1, dark</source>
        <translation>%1, dunkel</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>%1, very dark</source>
        <translation>%1, sehr dunkel</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>A colour that you press shows at once.</source>
        <translation>Eine Farbe, auf die Sie drücken, ist sofort zu sehen.</translation>
    </message>
    <message>
        <source>&amp;Use this colour</source>
        <translation>Diese Farbe &amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;More colours…</source>
        <translation>&amp;Mehr Farben …</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>Colour</name>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Buff</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a colour like that name, and its code</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>every key needs a value</source>
        <translation>zu jedem Schlüssel gehört ein Wert</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>es gibt keine Einstellung „%1“</translation>
    </message>
    <message>
        <source>Shows every setting: its key, value, default, range and what it is.</source>
        <translation>Zeigt jede Einstellung: Schlüssel, Wert, Standard, Bereich und was sie ist.</translation>
    </message>
    <message>
        <source>KEY…</source>
        <translation>SCHLÜSSEL…</translation>
    </message>
    <message>
        <source>KEY VALUE…</source>
        <translation>SCHLÜSSEL WERT…</translation>
    </message>
    <message>
        <source>Changes settings.</source>
        <translation>Ändert Einstellungen.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Writes the settings to a file; - stands for standard output.</source>
        <translation>Schreibt die Einstellungen in eine Datei; - steht für die Standardausgabe.</translation>
    </message>
    <message>
        <source>Prints the completion for bash.</source>
        <translation>Gibt die Vervollständigung für bash aus.</translation>
    </message>
    <message>
        <source>Prints the manual page&apos;s part on commands and settings.</source>
        <translation>Gibt den Teil der Handbuchseite über Befehle und Einstellungen aus.</translation>
    </message>
    <message>
        <source>Usage: korvex-preferences COMMAND [--json] [--yes] …</source>
        <translation>Aufruf: korvex-preferences BEFEHL [--json] [--yes] …</translation>
    </message>
    <message>
        <source>See korvex-preferences help.</source>
        <translation>Siehe korvex-preferences help.</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 nimmt keine Angabe</translation>
    </message>
    <message>
        <source>Nothing differs from the settings as they are.</source>
        <translation>Nichts ist anders als in den jetzigen Einstellungen.</translation>
    </message>
    <message>
        <source>Left out: %1: %2</source>
        <translation>Ausgelassen: %1: %2</translation>
    </message>
    <message>
        <source>%1 (in use)</source>
        <translation>%1 (in Gebrauch)</translation>
    </message>
    <message>
        <source>Nothing was changed. With --yes it is.</source>
        <translation>Nichts wurde geändert. Mit --yes geschieht es.</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>can&apos;t store the settings in %1</source>
        <translation>die Einstellungen können nicht in %1 gespeichert werden</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <comment>a heading of the manual page</comment>
        <translation>BEFEHLE</translation>
    </message>
    <message>
        <source>Opens the window at that section, or brings it to the front there.</source>
        <translation>Öffnet das Fenster bei diesem Abschnitt oder holt es dort nach vorn.</translation>
    </message>
    <message>
        <source>there is no section &quot;%1&quot;, but %2</source>
        <translation>es gibt keinen Abschnitt „%1“, nur %2</translation>
    </message>
    <message>
        <source>SECTION</source>
        <translation>ABSCHNITT</translation>
    </message>
    <message>
        <source>None but show needs a display. A change goes through the open window if there is one; else it is stored, and sent to the running agent.</source>
        <translation>Keiner außer show braucht einen Bildschirm. Eine Änderung geht durch das offene Fenster, wenn es eines gibt; sonst wird sie gespeichert und dem laufenden Agenten gesendet.</translation>
    </message>
    <message>
        <source>SETTINGS</source>
        <comment>a heading of the manual page</comment>
        <translation>EINSTELLUNGEN</translation>
    </message>
    <message>
        <source>%1 (in use, changed)</source>
        <translation>%1 (in Gebrauch, geändert)</translation>
    </message>
    <message>
        <source>list|use|compare|save|rename|delete [NAME…]</source>
        <translation>list|use|compare|save|rename|delete [NAME…]</translation>
    </message>
    <message>
        <source>Lists, uses and compares named states of the settings; compare says what differs between two, or between one and the settings.</source>
        <translation>Listet, verwendet und vergleicht benannte Stände der Einstellungen; compare sagt, was zwei unterscheidet oder eines von den Einstellungen.</translation>
    </message>
    <message>
        <source>which profile is in use can&apos;t be kept: %1</source>
        <translation>welches Profil in Gebrauch ist, kann nicht festgehalten werden: %1</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Nichts unterscheidet sich.</translation>
    </message>
    <message>
        <source>profile list, use NAME, compare NAME [OTHER], save NAME, rename NAME NEW or delete NAME</source>
        <translation>profile list, use NAME, compare NAME [ANDERER], save NAME, rename NAME NEU oder delete NAME</translation>
    </message>
    <message>
        <source>See korvex-preferences list.</source>
        <translation>Siehe korvex-preferences list.</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>eine Option „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>Resets settings to their defaults; &quot;all&quot; stands for all of them.</source>
        <translation>Setzt Einstellungen auf den Standard zurück; „all“ steht für alle.</translation>
    </message>
    <message>
        <source>answers for programs: numbers are numbers, yes and no are true and false, and what changes is a list of key, from and to</source>
        <translation>Antworten für Programme: Zahlen sind Zahlen, ja und nein sind true und false, und was sich ändert, ist eine Liste von key, from und to</translation>
    </message>
    <message>
        <source>lets import change the settings; no other command asks</source>
        <translation>lässt import die Einstellungen ändern; kein anderer Befehl fragt nach</translation>
    </message>
    <message>
        <source>Shows the value of settings, as set takes it in every language.</source>
        <translation>Zeigt den Wert von Einstellungen, wie set ihn in jeder Sprache nimmt.</translation>
    </message>
    <message>
        <source>Shows what a file would change; with --yes, changes it. - stands for standard input.</source>
        <translation>Zeigt, was eine Datei ändern würde; mit --yes wird es geändert. - steht für die Standardeingabe.</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>Standardausgabe: %1</translation>
    </message>
    <message>
        <source>--json goes with a file, not with -</source>
        <translation>--json gehört zu einer Datei, nicht zu -</translation>
    </message>
    <message>
        <source>For a shortcut of a Wayland desktop: tells Korvex that this key, or else the scan key, went down.</source>
        <translation>Für ein Tastenkürzel eines Wayland-Desktops: sagt Korvex, dass diese Taste, sonst die Scan-Taste, gedrückt wurde.</translation>
    </message>
    <message>
        <source>The same when it comes up.</source>
        <translation>Dasselbe beim Loslassen.</translation>
    </message>
    <message>
        <source>Prints such shortcuts for your hot keys, as sway&apos;s configuration has them.</source>
        <translation>Gibt solche Tastenkürzel für Ihre Tastenkombinationen aus, wie sways Konfiguration sie hat.</translation>
    </message>
    <message>
        <source>there is no key &quot;%1&quot;, but %2</source>
        <translation>es gibt keine Taste „%1“, aber %2</translation>
    </message>
    <message>
        <source>Korvex isn&apos;t running</source>
        <translation>Korvex läuft nicht</translation>
    </message>
    <message>
        <source>Korvex hears the keys itself in this session, or can&apos;t scan in it</source>
        <translation>Korvex hört die Tasten in dieser Sitzung selbst, oder kann in ihr nicht scannen</translation>
    </message>
    <message>
        <source>Korvex doesn&apos;t answer</source>
        <translation>Korvex antwortet nicht</translation>
    </message>
</context>
<context>
    <name>Faults</name>
    <message>
        <source>the change can&apos;t be sent</source>
        <translation>die Änderung kann nicht gesendet werden</translation>
    </message>
    <message>
        <source>the open window doesn&apos;t take the change</source>
        <translation>das offene Fenster nimmt die Änderung nicht an</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>ein Profil braucht einen Namen</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>a name has no slash, no control character and no blank at its ends, and doesn&apos;t begin with a point</source>
        <translation>ein Name hat keinen Schrägstrich, kein Steuerzeichen und am Rand kein Leerzeichen, und er beginnt nicht mit einem Punkt</translation>
    </message>
    <message>
        <source>there is no profile of that name</source>
        <translation>es gibt kein Profil mit diesem Namen</translation>
    </message>
    <message>
        <source>there is a profile of that name</source>
        <translation>es gibt schon ein Profil mit diesem Namen</translation>
    </message>
    <message>
        <source>outside %1</source>
        <translation>nicht im Bereich %1</translation>
    </message>
    <message>
        <source>none of: %1</source>
        <translation>nichts davon: %1</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>an action that there isn&apos;t</source>
        <translation>eine Aktion, die es nicht gibt</translation>
    </message>
    <message>
        <source>not a number in %1</source>
        <translation>keine Zahl in %1</translation>
    </message>
    <message>
        <source>not a value of this setting</source>
        <translation>kein Wert dieser Einstellung</translation>
    </message>
    <message>
        <source>no setting of this version</source>
        <translation>keine Einstellung dieser Version</translation>
    </message>
    <message>
        <source>there is no area of your own yet</source>
        <translation>es gibt noch keinen eigenen Bereich</translation>
    </message>
    <message>
        <source>larger than a file of settings can be</source>
        <translation>größer, als eine Datei mit Einstellungen sein kann</translation>
    </message>
    <message>
        <source>damaged, or no file of settings</source>
        <translation>beschädigt oder keine Datei mit Einstellungen</translation>
    </message>
    <message>
        <source>neither on nor off</source>
        <translation>weder on noch off</translation>
    </message>
    <message>
        <source>%1; for example %2</source>
        <translation>%1; zum Beispiel %2</translation>
    </message>
    <message>
        <source>the open window doesn&apos;t answer; the change may still come</source>
        <translation>das offene Fenster antwortet nicht; die Änderung kann noch kommen</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>It is running.</source>
        <translation>Er läuft.</translation>
    </message>
    <message>
        <source>It is starting…</source>
        <translation>Er startet…</translation>
    </message>
    <message>
        <source>It isn’t running now.</source>
        <translation>Er läuft gerade nicht.</translation>
    </message>
    <message>
        <source>None is installed yet.</source>
        <translation>Noch ist keiner installiert.</translation>
    </message>
    <message>
        <source>Press your switch, any key, or a mouse button in this field. It is filled while you press.</source>
        <translation>Drücken Sie Ihren Schalter, irgendeine Taste oder in diesem Feld eine Maustaste. Solange Sie drücken, ist das Feld gefüllt.</translation>
    </message>
    <message>
        <source>It answers: 1 press.</source>
        <translation>Er antwortet: 1 Betätigung.</translation>
    </message>
    <message numerus="yes">
        <source>It answers: %n presses.</source>
        <translation>
            <numerusform>Er antwortet: %n Betätigung.</numerusform>
            <numerusform>Er antwortet: %n Betätigungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pressed.</source>
        <translation>Gedrückt.</translation>
    </message>
    <message>
        <source>%1 The last one took %2 seconds.</source>
        <comment>%1 is a sentence: It answers: 3 presses.</comment>
        <translation>%1 Der letzte dauerte %2 Sekunden.</translation>
    </message>
    <message>
        <source>Press here</source>
        <translation>Hier drücken</translation>
    </message>
    <message>
        <source>To go on with your switch, wait half a minute: then it scans again.</source>
        <translation>Um mit dem Schalter weiterzumachen, warten Sie eine halbe Minute: Dann scannt er wieder.</translation>
    </message>
    <message>
        <source>Hit! So you reach everything on the screen.</source>
        <translation>Getroffen! So erreichen Sie alles auf dem Bildschirm.</translation>
    </message>
    <message numerus="yes">
        <source>Hit %n times.</source>
        <translation>
            <numerusform>%n-mal getroffen.</numerusform>
            <numerusform>%n-mal getroffen.</numerusform>
        </translation>
    </message>
    <message>
        <source>It begins once Korvex runs.</source>
        <translation>Es beginnt, sobald Korvex läuft.</translation>
    </message>
    <message>
        <source>It begins once Korvex is on.</source>
        <translation>Es beginnt, sobald Korvex eingeschaltet ist.</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message numerus="yes">
        <source>%.0f points</source>
        <translation>
            <numerusform>%.0f Punkt</numerusform>
            <numerusform>%.0f Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>%5.1f sec</source>
        <translation>%5.1f s</translation>
    </message>
    <message>
        <source>%3.0f%%</source>
        <translation>%3.0f %%</translation>
    </message>
    <message numerus="yes">
        <source>%3.0f points</source>
        <translation>
            <numerusform>%3.0f Punkt</numerusform>
            <numerusform>%3.0f Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>%3.0f ms</source>
        <translation>%3.0f ms</translation>
    </message>
    <message>
        <source>%.0f point</source>
        <translation>%.0f Punkt</translation>
    </message>
    <message>
        <source>%3.0f point</source>
        <translation>%3.0f Punkt</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Korvex Help</source>
        <translation>Korvex-Hilfe</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>No web browser could be opened. This is the help’s page without its looks; its file is %1.</source>
        <translation>Kein Webbrowser ließ sich öffnen. Dies ist die Seite der Hilfe ohne ihre Gestaltung; ihre Datei ist %1.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Korvex.prefPane: not found beside this program</source>
        <translation>Korvex.prefPane: nicht neben diesem Programm gefunden</translation>
    </message>
    <message>
        <source>it is open already, but doesn&apos;t answer</source>
        <translation>es ist schon offen, antwortet aber nicht</translation>
    </message>
    <message>
        <source>there is no section &apos;%1&apos;</source>
        <translation>es gibt keinen Abschnitt „%1“</translation>
    </message>
    <message>
        <source>the settings aren&apos;t saved: %1</source>
        <translation>die Einstellungen sind nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Usage: korvex-preferences [BUNDLE.prefPane]
       korvex-preferences COMMAND OPERANDS
       korvex-preferences --section NAME
       korvex-preferences --service
       korvex-preferences --check BUNDLE.prefPane

Shows the settings pane of the bundle, of Korvex&apos;s own without one.

  COMMAND         change or read settings without a window; see the command &quot;help&quot;
  --section NAME  show that section of the pane, for example &quot;palette&quot;
  --service       wait until the session bus asks for the window
  --check BUNDLE  load the bundle, check its interface files, show nothing
  --help          print this text
  --version       print the version
</source>
        <translation>Aufruf: korvex-preferences [BÜNDEL.prefPane]
        korvex-preferences BEFEHL ANGABEN
        korvex-preferences --section NAME
        korvex-preferences --service
        korvex-preferences --check BÜNDEL.prefPane

Zeigt die Einstellungen des Bündels, ohne Angabe die von Korvex.

  BEFEHL          ändert oder liest Einstellungen ohne Fenster; siehe den Befehl „help“
  --section NAME  zeigt diesen Abschnitt, zum Beispiel „palette“
  --service       wartet, bis der Sitzungsbus das Fenster verlangt
  --check BÜNDEL  lädt das Bündel, prüft seine Formulare, zeigt nichts
  --help          gibt diesen Text aus
  --version       gibt die Version aus
</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>New keys for “%1”</source>
        <translation>Neue Tasten für „%1“</translation>
    </message>
    <message>
        <source>Press new keys</source>
        <translation>Neue Tasten drücken</translation>
    </message>
    <message>
        <source>Choose keys…</source>
        <translation>Tasten wählen…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Listening: press the new hot key, one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too. Seconds left: %1.</source>
        <translation>Drücken Sie jetzt die neue Taste, allein oder zusammen mit Strg, Alt, Umschalt oder Super. Jede Taste zählt, auch Esc und Tab. Verbleibende Sekunden: %1.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Now %1.</source>
        <translation>Jetzt %1.</translation>
    </message>
    <message>
        <source>Capturing: press the new keys.</source>
        <translation>Aufnahme: Drücken Sie die neuen Tasten.</translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation>Scannen ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation>Scan abbrechen</translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation>Diese Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Keys that this desktop uses itself aren’t heard here. “Choose keys…” in the menu has them too.</source>
        <translation>Tasten, die dieser Desktop selbst benutzt, kommen hier nicht an. Über „Tasten wählen…“ im Menü gehen auch sie.</translation>
    </message>
    <message>
        <source>Scan, second key</source>
        <translation>Scannen, zweite Taste</translation>
    </message>
    <message>
        <source>%1 (hot key)</source>
        <comment>as in Scan (hot key)</comment>
        <translation>%1 (Tastenkombination)</translation>
    </message>
    <message>
        <source>Use these keys only here</source>
        <translation>Diese Tasten nur hier verwenden</translation>
    </message>
    <message>
        <source>Undo the change here</source>
        <translation>Die Änderung hier rückgängig machen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>%1 on your keyboard</source>
        <translation>%1 auf Ihrer Tastatur</translation>
    </message>
    <message>
        <source>⚠ The same keys as %1. The menu beside it offers to use them only here, or to undo the change.</source>
        <translation>⚠ Dieselben Tasten wie %1. Das Menü daneben bietet an, sie nur hier zu verwenden oder die Änderung rückgängig zu machen.</translation>
    </message>
</context>
<context>
    <name>Joints</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two clauses of a sentence</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two items of a list</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what something is, and a note on it</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a value, and a sentence on it</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>F13 or Print Screen</source>
        <translation>F13 oder Druck</translation>
    </message>
    <message>
        <source>F14 or Scroll Lock</source>
        <translation>F14 oder Rollen</translation>
    </message>
    <message>
        <source>F15 or Pause</source>
        <translation>F15 oder Pause</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabetaste</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Up arrow</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Down arrow</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>keypad Enter</source>
        <translation>Ziffernblock Eingabetaste</translation>
    </message>
    <message>
        <source>keypad %1</source>
        <translation>Ziffernblock %1</translation>
    </message>
    <message>
        <source>Super+</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>Ctrl+</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>Shift+</source>
        <translation>Umschalt+</translation>
    </message>
    <message>
        <source>Alt+</source>
        <translation>Alt+</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>return</source>
        <translation>Eingabetaste</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>enter</source>
        <translation>Ziffernblock Eingabetaste</translation>
    </message>
    <message>
        <source>esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>caps lock</source>
        <translation>Feststelltaste</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>page up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>end</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>page down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>command+</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>control+</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>shift+</source>
        <translation>Umschalt+</translation>
    </message>
    <message>
        <source>option+</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source> keypad </source>
        <translation> Ziffernblock </translation>
    </message>
    <message>
        <source> fn </source>
        <translation> fn </translation>
    </message>
    <message>
        <source>-none-</source>
        <translation>-keine-</translation>
    </message>
</context>
<context>
    <name>NSColorWell</name>
    <message>
        <source>Red %1, green %2, blue %3, each of 255</source>
        <translation>Rot %1, Grün %2, Blau %3, jeweils von 255</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>This desktop has no settings that could be opened here. The help says how to switch assistive access on.</source>
        <translation>Dieser Desktop hat keine Einstellungen, die sich hier öffnen lassen. Die Hilfe sagt, wie man den Zugriff einschaltet.</translation>
    </message>
</context>
<context>
    <name>NumberRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>As in &quot;Volume, louder&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, much %2</source>
        <translation>%1, viel %2</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>%1 less</source>
        <translation>%1 weniger</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 mehr</translation>
    </message>
    <message>
        <source>Only %1 to %2 can be set.</source>
        <translation>Möglich ist nur %1 bis %2.</translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <comment>a value, and what a press changes</comment>
        <translation>%1. %2.</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Choose the button to swap with button %1. The same button again, or Escape, cancels.</source>
        <translation>Wählen Sie den Knopf, mit dem Knopf %1 tauschen soll. Derselbe Knopf noch einmal oder Esc bricht ab.</translation>
    </message>
    <message>
        <source>Chosen: button %1.</source>
        <translation>Gewählt: Knopf %1.</translation>
    </message>
    <message>
        <source>Choose a button to change it.</source>
        <translation>Wählen Sie einen Knopf, um ihn zu ändern.</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Leerer Platz</translation>
    </message>
    <message>
        <source>Action %1</source>
        <translation>Aktion %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>number and name of a button</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Pane</name>
    <message>
        <source>Korvex</source>
        <translation>Korvex</translation>
    </message>
    <message>
        <source>Chooses another section of the settings.</source>
        <translation>Wählt einen anderen Abschnitt der Einstellungen.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Scanning with Korvex</source>
        <translation>Mit Korvex scannen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Off stops scanning and keeps all settings. Hold Alt (Option) while you click to quit Korvex itself, or to start it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;„Aus“ beendet das Scannen und behält alle Einstellungen. Halten Sie Alt beim Klicken, um Korvex selbst zu beenden oder zu starten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Turns scanning off and on. Your settings stay as they are.</source>
        <translation>Schaltet das Scannen aus und ein. Ihre Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Stops scanning. With Alt held, quits Korvex.</source>
        <translation>Beendet das Scannen. Mit Alt wird Korvex beendet.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Makes Korvex ready to scan. With Alt held, starts Korvex if it is not running.</source>
        <translation>Macht Korvex bereit zum Scannen. Mit Alt wird Korvex gestartet, falls es nicht läuft.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Makes a change again that was undone. Ctrl+Shift+Z does the same.</source>
        <translation>Macht eine zurückgenommene Änderung noch einmal. Strg+Umschalt+Z tut dasselbe.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Makes a change again that was undone. Ctrl+Shift+Z does the same.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Macht eine zurückgenommene Änderung noch einmal. Strg+Umschalt+Z tut dasselbe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Sections of the settings</source>
        <translation>Abschnitte der Einstellungen</translation>
    </message>
    <message>
        <source>The arrow keys choose a section.</source>
        <translation>Die Pfeiltasten wählen einen Abschnitt.</translation>
    </message>
    <message>
        <source>&amp;Scanning</source>
        <translation>&amp;Scannen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>&amp;Line crosses the screen in</source>
        <translation>&amp;Linie überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>kürzer</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>länger</translation>
    </message>
    <message>
        <source>More time makes it easier to stop the line in the right place.</source>
        <translation>Mit mehr Zeit halten Sie die Linie leichter an der richtigen Stelle an.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 60 seconds, pressing one second late moves the line by only a sixtieth of the screen.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bei 60 Sekunden verschiebt eine Sekunde Verspätung die Linie nur um ein Sechzigstel des Bildschirms.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Pointer &amp;crosses the screen in</source>
        <translation>&amp;Zeiger überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>Once you have stopped the line, the pointer moves along it.</source>
        <translation>Wenn Sie die Linie angehalten haben, läuft der Zeiger an ihr entlang.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Many people need as long here as for the line, because this press decides where the click lands.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Viele brauchen hier so lange wie für die Linie, denn dieser Druck entscheidet, wo geklickt wird.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Speed in &amp;menus</source>
        <translation>Tempo in &amp;Menüs</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>langsamer</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>schneller</translation>
    </message>
    <message>
        <source>100% is as fast as on the rest of the screen. Menu items are small, so slower is easier.</source>
        <translation>100 % ist so schnell wie sonst auf dem Bildschirm. Menüeinträge sind klein, langsamer ist leichter.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Below 100 a menu gives you more time than the rest of the screen; above 100 it saves waiting.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Unter 100 haben Sie im Menü mehr Zeit als sonst; über 100 warten Sie weniger.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation>Langsam beginnen, dann schneller werden</translation>
    </message>
    <message>
        <source>Gives you time for things near the start without a long wait for those far away.</source>
        <translation>Gibt Ihnen Zeit für Dinge am Anfang, ohne langes Warten auf die entfernten.</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Press your switch a few times and see which speed suits you.</source>
        <translation>Drücken Sie einige Male und sehen Sie, welches Tempo Ihnen passt.</translation>
    </message>
    <message>
        <source>Find my speed</source>
        <translation>Mein Tempo finden</translation>
    </message>
    <message>
        <source>Find my speed…</source>
        <translation>Mein Tempo finden…</translation>
    </message>
    <message>
        <source>Pauses and clicks</source>
        <translation>Pausen und Klicks</translation>
    </message>
    <message>
        <source>&amp;Wait before the scan starts</source>
        <translation>&amp;Warten, bevor der Scan beginnt</translation>
    </message>
    <message>
        <source>&lt;p&gt;Enough to settle back and look at the screen before anything moves.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Genug, um sich zurechtzusetzen und auf den Bildschirm zu sehen, bevor sich etwas bewegt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>R&amp;epeat an action every</source>
        <translation>&amp;Eine Aktion wiederholen alle</translation>
    </message>
    <message>
        <source>Actions such as scrolling go on at this pace until you press again.</source>
        <translation>Aktionen wie das Blättern gehen in diesem Takt weiter, bis Sie wieder drücken.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Short suits scrolling; long leaves time to stop after a single repeat.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Kurz passt zum Blättern; lang lässt Zeit, nach einer einzigen Wiederholung anzuhalten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Length of a clic&amp;k</source>
        <translation>Länge eines &amp;Klicks</translation>
    </message>
    <message>
        <source>How long Korvex holds the mouse button down. Make it longer if a program misses clicks.</source>
        <translation>Wie lange Korvex die Maustaste drückt. Länger, wenn ein Programm Klicks übersieht.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few programs, games above all, miss a click of less than 50; above 300 many see a long press.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Manche Programme, vor allem Spiele, übersehen einen Klick unter 50; über 300 gilt er bei vielen als langer Druck.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What is scanned</source>
        <translation>Was gescannt wird</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Which part of the screen is scanned.</source>
        <translation>Welcher Teil des Bildschirms gescannt wird.</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Der ganze Bildschirm</translation>
    </message>
    <message>
        <source>The line crosses the whole screen.</source>
        <translation>Die Linie überquert den ganzen Bildschirm.</translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation>Nur mein eigener Bereich</translation>
    </message>
    <message>
        <source>A smaller area takes less time. It is the part that you choose, draw or type below.</source>
        <translation>Ein kleinerer Bereich braucht weniger Zeit. Es ist der, den Sie unten wählen, zeichnen oder eingeben.</translation>
    </message>
    <message>
        <source>Part of the screen</source>
        <translation>Teil des Bildschirms</translation>
    </message>
    <message>
        <source>Parts of the screen</source>
        <translation>Teile des Bildschirms</translation>
    </message>
    <message>
        <source>The arrow keys go from one to the next; Space chooses it.</source>
        <translation>Die Pfeiltasten gehen vom einen zum nächsten; die Leertaste wählt ihn.</translation>
    </message>
    <message>
        <source>My own area</source>
        <translation>Mein eigener Bereich</translation>
    </message>
    <message>
        <source>Drag across the screen, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation>Ziehen Sie über den Bildschirm, oder bewegen Sie die rechte untere Ecke des Bereichs mit den Pfeiltasten und, mit Umschalt, die linke obere. Die Eingabetaste behält den Bereich, Esc lässt alles, wie es war.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Width × height at left, top, in points on the screen.</source>
        <translation>Breite × Höhe bei links, oben, in Punkten auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Draw my own area</source>
        <translation>Meinen eigenen Bereich zeichnen</translation>
    </message>
    <message>
        <source>Covers the screen. Drag across it, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation>Bedeckt den Bildschirm. Ziehen Sie darüber, oder bewegen Sie die rechte untere Ecke des Bereichs mit den Pfeiltasten und, mit Umschalt, die linke obere. Die Eingabetaste behält den Bereich, Esc lässt alles, wie es war.</translation>
    </message>
    <message>
        <source>&amp;Draw…</source>
        <translation>Zeich&amp;nen…</translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation>Auch die Menüleiste scannen</translation>
    </message>
    <message>
        <source>Turn this off if you never use the menu bar and want it skipped.</source>
        <translation>Schalten Sie das aus, wenn Sie die Menüleiste nie brauchen und sie übersprungen werden soll.</translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation>Der Linien-Scan beendet den Tastaturmodus</translation>
    </message>
    <message>
        <source>Starting the scan line then leaves the on-screen keyboard, so you need no extra step to get back to the screen.</source>
        <translation>Wenn die Linie startet, verlassen Sie damit die Bildschirmtastatur und brauchen keinen weiteren Schritt zurück zum Bildschirm.</translation>
    </message>
    <message>
        <source>P&amp;resses</source>
        <translation>&amp;Drücken</translation>
    </message>
    <message>
        <source>Presses</source>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Art zu scannen</translation>
    </message>
    <message>
        <source>How your switch controls the scan.</source>
        <translation>Wie Ihr Schalter den Scan steuert.</translation>
    </message>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Drücken zum Starten, drücken zum Wählen</translation>
    </message>
    <message>
        <source>The scan moves by itself. Press once to start it and again at the thing you want.</source>
        <translation>Der Scan läuft von selbst. Drücken Sie einmal zum Starten und noch einmal beim Gewünschten.</translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation>Ein Druck zählt</translation>
    </message>
    <message>
        <source>Choose “let go” if you can time that better.</source>
        <translation>Wählen Sie „Wenn ich loslasse“, wenn Sie das besser treffen.</translation>
    </message>
    <message>
        <source>Used by this way of scanning only. Choose “let go” if you can time that better.</source>
        <translation>Nur bei dieser Art zu scannen. Wählen Sie „Wenn ich loslasse“, wenn Sie das besser treffen.</translation>
    </message>
    <message>
        <source>When I press</source>
        <translation>Wenn ich drücke</translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation>Wenn ich loslasse</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Halten zum Scannen, loslassen zum Wählen</translation>
    </message>
    <message>
        <source>The scan moves while you hold your switch down and stops when you let go.</source>
        <translation>Der Scan läuft, solange Sie den Schalter halten, und hält beim Loslassen an.</translation>
    </message>
    <message>
        <source>Wait after &amp;letting go</source>
        <translation>Warten nach dem L&amp;oslassen</translation>
    </message>
    <message>
        <source>Press again within this time to go on. After it, Korvex chooses.</source>
        <translation>Drücken Sie in dieser Zeit wieder, um weiterzumachen. Danach wählt Korvex.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few seconds let you put right a hand that slipped off the switch.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mit einigen Sekunden können Sie ausgleichen, dass die Hand vom Schalter gerutscht ist.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Jeder Druck geht einen Schritt weiter</translation>
    </message>
    <message>
        <source>The scan ends after this time without a press.</source>
        <translation>Der Scan endet nach dieser Zeit ohne Druck.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A long time lets you rest between steps; a short one clears the screen soon after you stop.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Eine lange Zeit lässt Sie zwischen den Schritten ruhen; eine kurze räumt den Bildschirm bald nach dem Aufhören.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Steadier presses</source>
        <translation>Ruhiger drücken</translation>
    </message>
    <message>
        <source>Shortest press that &amp;counts</source>
        <translation>&amp;Kürzester Druck, der zählt</translation>
    </message>
    <message>
        <source>Shorter ones, as from a tremor, are ignored. 0 counts all.</source>
        <translation>Kürzere, etwa durch Zittern, zählen nicht. Bei 0 zählen alle.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few tenths of a second filter out most tremor; more than a second makes every press deliberate.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Einige Zehntelsekunden filtern das meiste Zittern; über einer Sekunde ist jeder Druck Absicht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Ignore presses after a click for</source>
        <translation>Drücken nach einem Klick &amp;ignorieren für</translation>
    </message>
    <message>
        <source>Stops an unwanted second press from counting. 0 ignores none.</source>
        <translation>Verhindert, dass ein ungewollter zweiter Druck zählt. 0 beachtet alle.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Half a second stops most accidental double presses; longer leaves time for a spasm to pass.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Eine halbe Sekunde fängt die meisten doppelten Betätigungen ab; länger lässt einen Krampf vorübergehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Your switch</source>
        <translation>Ihr Schalter</translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation>Auf Tasten hören</translation>
    </message>
    <message>
        <source>For a switch or switch box that types a key. Leave this or mouse clicks on, or nothing you press will start a scan.</source>
        <translation>Für einen Schalter, der eine Taste tippt. Lassen Sie dies oder die Mausklicks an, sonst startet nichts einen Scan.</translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation>Auf Mausklicks hören</translation>
    </message>
    <message>
        <source>For a switch that is connected as a mouse button, or for the mouse itself.</source>
        <translation>Für einen Schalter, der als Maustaste angeschlossen ist, oder für die Maus selbst.</translation>
    </message>
    <message>
        <source>Press the new hot key: one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too.</source>
        <translation>Drücken Sie die neue Taste, allein oder zusammen mit Strg, Alt, Umschalt oder Super. Jede Taste zählt, auch Esc und Tab.</translation>
    </message>
    <message>
        <source>Keeps the hot key as it is.</source>
        <translation>Lässt die Taste, wie sie ist.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Takes the hot key away.</source>
        <translation>Nimmt die Taste weg.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Sca&amp;n</source>
        <translation>S&amp;cannen</translation>
    </message>
    <message>
        <source>Starts a scan and stops it: the key that your switch types.</source>
        <translation>Startet einen Scan und hält ihn an: die Taste, die Ihr Schalter tippt.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Click, then press the new keys.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Klicken Sie, dann drücken Sie die neuen Tasten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Change: Scan</source>
        <translation>Ändern: Scannen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Scan, s&amp;econd key</source>
        <translation>Scannen, &amp;zweite Taste</translation>
    </message>
    <message>
        <source>Does the same, for a second switch or a key in another place.</source>
        <translation>Tut dasselbe, für einen zweiten Schalter oder eine Taste an anderer Stelle.</translation>
    </message>
    <message>
        <source>Scan, second key</source>
        <translation>Scannen, zweite Taste</translation>
    </message>
    <message>
        <source>Change: Scan, second key</source>
        <translation>Ändern: Scannen, zweite Taste</translation>
    </message>
    <message>
        <source>C&amp;ancel the scan</source>
        <translation>Scan abb&amp;rechen</translation>
    </message>
    <message>
        <source>Takes the line away without a click.</source>
        <translation>Nimmt die Linie ohne Klick weg.</translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation>Scan abbrechen</translation>
    </message>
    <message>
        <source>Change: Cancel the scan</source>
        <translation>Ändern: Scan abbrechen</translation>
    </message>
    <message>
        <source>&amp;Turn scanning on or off</source>
        <translation>Scannen &amp;ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Does what the switch at the top of this window does.</source>
        <translation>Tut, was der Umschalter oben in diesem Fenster tut.</translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation>Scannen ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Change: Turn scanning on or off</source>
        <translation>Ändern: Scannen ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Sho&amp;w these settings</source>
        <translation>Diese Einste&amp;llungen zeigen</translation>
    </message>
    <message>
        <source>Opens this window from wherever you are.</source>
        <translation>Öffnet dieses Fenster von überall her.</translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation>Diese Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Change: Show these settings</source>
        <translation>Ändern: Diese Einstellungen zeigen</translation>
    </message>
    <message>
        <source>To hold while the key is pressed.</source>
        <translation>Wird gehalten, während die Taste gedrückt wird.</translation>
    </message>
    <message>
        <source>command (Super)</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>control</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>option (Alt)</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Choose a key</source>
        <translation>Eine Taste wählen</translation>
    </message>
    <message>
        <source>The key that you choose becomes the hot key, with the boxes that are ticked.</source>
        <translation>Die gewählte Taste gilt, zusammen mit den angekreuzten Feldern.</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>&amp;Aussehen</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Click to see the other line.</source>
        <translation>Klicken Sie, um die andere Linie zu sehen.</translation>
    </message>
    <message>
        <source>With it are two sample buttons and the pointer. Shows the other line when pressed.</source>
        <translation>Dazu zwei Beispielknöpfe und der Zeiger. Zeigt beim Drücken die andere Linie.</translation>
    </message>
    <message>
        <source>Scan line and guide line</source>
        <translation>Scanlinie und Führungslinie</translation>
    </message>
    <message>
        <source>&amp;Line colour</source>
        <translation>&amp;Linienfarbe</translation>
    </message>
    <message>
        <source>Choose a colour that stands out from your windows and desktop.</source>
        <translation>Wählen Sie eine Farbe, die sich von Ihren Fenstern und dem Hintergrund abhebt.</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Strong colours</source>
        <translation>Kräftige Farben</translation>
    </message>
    <message>
        <source>Line &amp;thickness</source>
        <translation>Linie&amp;ndicke</translation>
    </message>
    <message>
        <source>thinner</source>
        <translation>dünner</translation>
    </message>
    <message>
        <source>thicker</source>
        <translation>dicker</translation>
    </message>
    <message>
        <source>A thick line is easier to see; a thin one hides less.</source>
        <translation>Eine dicke Linie ist leichter zu sehen, eine dünne verdeckt weniger.</translation>
    </message>
    <message>
        <source>Scan line transparenc&amp;y</source>
        <translation>&amp;Transparenz der Scanlinie</translation>
    </message>
    <message>
        <source>more solid</source>
        <translation>deckender</translation>
    </message>
    <message>
        <source>more transparent</source>
        <translation>durchsichtiger</translation>
    </message>
    <message>
        <source>0% is solid. A higher value lets you see what is beneath the line.</source>
        <translation>0 % deckt ganz. Ein höherer Wert lässt sehen, was unter der Linie ist.</translation>
    </message>
    <message>
        <source>&lt;p&gt;It stops short of 100 so that the scan line can never vanish.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Es endet vor 100, damit die Scanlinie nie verschwindet.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Gui&amp;de line transparency</source>
        <translation>Transparenz der &amp;Führungslinie</translation>
    </message>
    <message>
        <source>The guide line goes with the scan line. 100% hides it.</source>
        <translation>Die Führungslinie begleitet die Scanlinie. 100 % blendet sie aus.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 100 the guide line is invisible, for those whom a second line distracts.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bei 100 ist die Führungslinie unsichtbar, falls eine zweite Linie ablenkt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Poi&amp;nter</source>
        <translation>&amp;Zeiger</translation>
    </message>
    <message>
        <source>What moves along the line.</source>
        <translation>Was an der Linie entlangläuft.</translation>
    </message>
    <message>
        <source>Previous pointer</source>
        <translation>Voriger Zeiger</translation>
    </message>
    <message>
        <source>Chooses the pointer before this one. Before the first comes the last.</source>
        <translation>Wählt den Zeiger davor. Vor dem ersten kommt der letzte.</translation>
    </message>
    <message>
        <source>Next pointer</source>
        <translation>Nächster Zeiger</translation>
    </message>
    <message>
        <source>Chooses the pointer after this one. After the last comes the first.</source>
        <translation>Wählt den Zeiger danach. Nach dem letzten kommt der erste.</translation>
    </message>
    <message>
        <source>All pointers</source>
        <translation>Alle Zeiger</translation>
    </message>
    <message>
        <source>Choose a large one, or one whose colour you find quickly.</source>
        <translation>Wählen Sie einen großen oder einen, dessen Farbe Sie schnell finden.</translation>
    </message>
    <message>
        <source>The shape of each button of the palette.</source>
        <translation>Die Form jedes Palettenknopfs.</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Eckig</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Show the icon</source>
        <translation>Bild zeigen</translation>
    </message>
    <message>
        <source>Each button of the palette shows the picture of its action.</source>
        <translation>Jeder Palettenknopf zeigt das Bild seiner Aktion.</translation>
    </message>
    <message>
        <source>Show the name</source>
        <translation>Namen zeigen</translation>
    </message>
    <message>
        <source>Each button of the palette shows the name of its action.</source>
        <translation>Jeder Palettenknopf zeigt den Namen seiner Aktion.</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>kleiner</translation>
    </message>
    <message>
        <source>larger</source>
        <translation>größer</translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation>Palettenknöpfe</translation>
    </message>
    <message>
        <source>Larger buttons are easier to see and to hit. 20 to 100 points each way.</source>
        <translation>Größere Knöpfe sind leichter zu sehen und zu treffen. 20 bis 100 Punkte je Seite.</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>schmaler</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>breiter</translation>
    </message>
    <message>
        <source>Wider buttons have room for longer names.</source>
        <translation>Breitere Knöpfe haben Platz für längere Namen.</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>niedriger</translation>
    </message>
    <message>
        <source>higher</source>
        <translation>höher</translation>
    </message>
    <message>
        <source>Higher buttons have room for a larger icon above the name.</source>
        <translation>Höhere Knöpfe haben Platz für ein größeres Bild über dem Namen.</translation>
    </message>
    <message>
        <source>Between the buttons and the edge of the palette.</source>
        <translation>Zwischen den Knöpfen und dem Rand der Palette.</translation>
    </message>
    <message>
        <source>More space makes it harder to hit the wrong button.</source>
        <translation>Mit mehr Abstand trifft man seltener den falschen Knopf.</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>The nine places of the palette. The arrow keys move between them, Space chooses one.</source>
        <translation>Die neun Plätze der Palette. Die Pfeiltasten gehen zwischen ihnen, die Leertaste wählt einen.</translation>
    </message>
    <message>
        <source>Add a button</source>
        <translation>Einen Knopf hinzufügen</translation>
    </message>
    <message>
        <source>Puts a new button before the chosen one or, with none chosen, after the last.</source>
        <translation>Setzt einen neuen Knopf vor den gewählten oder, wenn keiner gewählt ist, hinter den letzten.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts a new button before the chosen one or, with none chosen, after the last.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Setzt einen neuen Knopf vor den gewählten oder, wenn keiner gewählt ist, hinter den letzten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>Hinzu&amp;fügen</translation>
    </message>
    <message>
        <source>Change the chosen button</source>
        <translation>Den gewählten Knopf ändern</translation>
    </message>
    <message>
        <source>Gives the chosen button another action.</source>
        <translation>Gibt dem gewählten Knopf eine andere Aktion.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the chosen button another action.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gibt dem gewählten Knopf eine andere Aktion.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cha&amp;nge</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>Remove the chosen button</source>
        <translation>Den gewählten Knopf entfernen</translation>
    </message>
    <message>
        <source>Takes the chosen button away; those after it move up.</source>
        <translation>Nimmt den gewählten Knopf weg; die folgenden rücken auf.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the chosen button away; those after it move up.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nimmt den gewählten Knopf weg; die folgenden rücken auf.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Swap the chosen button</source>
        <translation>Den gewählten Knopf tauschen</translation>
    </message>
    <message>
        <source>Then choose the button that it is to change places with.</source>
        <translation>Wählen Sie dann den Knopf, mit dem er den Platz tauscht.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Then choose the button that it is to change places with.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wählen Sie dann den Knopf, mit dem er den Platz tauscht.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>S&amp;wap…</source>
        <translation>&amp;Tauschen…</translation>
    </message>
    <message>
        <source>Reset all buttons</source>
        <translation>Alle Knöpfe zurücksetzen</translation>
    </message>
    <message>
        <source>R&amp;eset all</source>
        <translation>Alle &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>A new button goes before the chosen one. With none chosen it goes after the last.</source>
        <translation>Ein neuer Knopf kommt vor den gewählten. Ist keiner gewählt, kommt er hinter den letzten.</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation>Ein Ton bei jedem Klick</translation>
    </message>
    <message>
        <source>Tells you that Korvex has clicked, even when you look elsewhere.</source>
        <translation>Sagt Ihnen, dass Korvex geklickt hat, auch wenn Sie woanders hinsehen.</translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation>Hinweise beim Ziehen</translation>
    </message>
    <message>
        <source>Tells you when something was picked up and let go.</source>
        <translation>Sagt Ihnen, wenn etwas aufgenommen und losgelassen wurde.</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Lautstärke</translation>
    </message>
    <message>
        <source>quieter</source>
        <translation>leiser</translation>
    </message>
    <message>
        <source>louder</source>
        <translation>lauter</translation>
    </message>
    <message>
        <source>How loud these sounds are, from 0, silent, to 100.</source>
        <translation>Wie laut diese Töne sind, von 0, stumm, bis 100.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 50 there is room to go louder in a noisy place and quieter at night.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bei 50 geht es an lauten Orten noch lauter und nachts leiser.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Starting Korvex</source>
        <translation>Korvex starten</translation>
    </message>
    <message>
        <source>Start Korvex when you log in</source>
        <translation>Korvex beim Anmelden starten</translation>
    </message>
    <message>
        <source>Your switch works from the first moment, and nobody has to start Korvex for you.</source>
        <translation>Ihr Schalter wirkt vom ersten Moment an, und niemand muss Korvex für Sie starten.</translation>
    </message>
    <message>
        <source>Turn scanning on when Korvex starts</source>
        <translation>Scannen einschalten, wenn Korvex startet</translation>
    </message>
    <message>
        <source>Otherwise Korvex waits until you turn scanning on, here or with its key.</source>
        <translation>Sonst wartet Korvex, bis Sie das Scannen einschalten, hier oder mit der Taste.</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>The page of the first start</source>
        <translation>Die Seite des ersten Starts</translation>
    </message>
    <message>
        <source>Shows your switch answer, how you press, a speed, and where help is.</source>
        <translation>Zeigt, wie Ihr Schalter antwortet, wie Sie drücken, ein Tempo und wo Hilfe ist.</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Uses a profile, which changes all settings at once, and says which one is in use.</source>
        <translation>Verwendet ein Profil, das alle Einstellungen auf einmal ändert, und sagt, welches in Gebrauch ist.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Uses a profile, which changes all settings at once.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Verwendet ein Profil, das alle Einstellungen auf einmal ändert.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Stop witho&amp;ut a press for</source>
        <translation>&amp;Beenden ohne Druck nach</translation>
    </message>
    <message>
        <source>Your profiles</source>
        <translation>Ihre Profile</translation>
    </message>
    <message>
        <source>The arrow keys go from one to the next; Space chooses it and says what it would change.</source>
        <translation>Die Pfeiltasten gehen von einem zum nächsten; die Leertaste wählt es und sagt, was es ändern würde.</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>Das gewählte Profil verwenden</translation>
    </message>
    <message>
        <source>Changes all these settings at once. Undo takes it back.</source>
        <translation>Ändert alle diese Einstellungen auf einmal. „Rückgängig“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>The chosen profile gets the settings as they are now.</source>
        <translation>Das gewählte Profil bekommt die Einstellungen, wie sie jetzt sind.</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>Das gewählte Profil löschen</translation>
    </message>
    <message>
        <source>Deletes the chosen profile. The settings stay as they are.</source>
        <translation>Löscht das gewählte Profil. Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Save the settings as a profile</source>
        <translation>Die Einstellungen als Profil speichern</translation>
    </message>
    <message>
        <source>A name, typed or from below</source>
        <translation>Ein Name, getippt oder von unten</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Name des Profils</translation>
    </message>
    <message>
        <source>Type a name, or press one of the buttons below. Return saves.</source>
        <translation>Tippen Sie einen Namen oder drücken Sie einen der Knöpfe darunter. Die Eingabetaste speichert.</translation>
    </message>
    <message>
        <source>Puts this name into the field.</source>
        <translation>Schreibt diesen Namen in das Feld.</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Nachmittag</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Abend</translation>
    </message>
    <message>
        <source>Rested</source>
        <translation>Ausgeruht</translation>
    </message>
    <message>
        <source>Tired</source>
        <translation>Müde</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Save the settings under the name above</source>
        <translation>Die Einstellungen unter dem Namen oben speichern</translation>
    </message>
    <message>
        <source>Saves the settings as they are now under the name above.</source>
        <translation>Speichert die Einstellungen, wie sie jetzt sind, unter dem Namen oben.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Gives the chosen profile the name above.</source>
        <translation>Gibt dem gewählten Profil den Namen oben.</translation>
    </message>
    <message>
        <source>Rename the chosen one</source>
        <translation>Das gewählte umbenennen</translation>
    </message>
    <message>
        <source>Shows what the file would change, before anything is changed.</source>
        <translation>Zeigt, was die Datei ändern würde, bevor etwas geändert wird.</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>As a backup, or for another computer.</source>
        <translation>Als Sicherung oder für einen anderen Computer.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>How the palette looks</source>
        <translation>Aussehen der Palette</translation>
    </message>
    <message>
        <source>Scans only that part from now on: the whole screen, a half, a third, a quarter or, where the desktop tells it, the window that you used last.</source>
        <translation>Scannt von nun an nur diesen Teil: den ganzen Bildschirm, eine Hälfte, ein Drittel, ein Viertel oder, wo der Desktop es mitteilt, das zuletzt benutzte Fenster.</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>further left</source>
        <translation>weiter links</translation>
    </message>
    <message>
        <source>further right</source>
        <translation>weiter rechts</translation>
    </message>
    <message>
        <source>Left edge of my own area</source>
        <translation>Linker Rand meines Bereichs</translation>
    </message>
    <message>
        <source>From the main screen’s left edge.</source>
        <translation>Vom linken Rand des Hauptbildschirms aus.</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>further up</source>
        <translation>weiter oben</translation>
    </message>
    <message>
        <source>further down</source>
        <translation>weiter unten</translation>
    </message>
    <message>
        <source>Top edge of my own area</source>
        <translation>Oberer Rand meines Bereichs</translation>
    </message>
    <message>
        <source>From the main screen’s top edge.</source>
        <translation>Vom oberen Rand des Hauptbildschirms aus.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Width of my own area</source>
        <translation>Breite meines Bereichs</translation>
    </message>
    <message>
        <source>A narrow area is scanned sooner.</source>
        <translation>Ein schmaler Bereich ist schneller gescannt.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Height of my own area</source>
        <translation>Höhe meines Bereichs</translation>
    </message>
    <message>
        <source>A low area is scanned sooner.</source>
        <translation>Ein niedriger Bereich ist schneller gescannt.</translation>
    </message>
    <message>
        <source>Show it…</source>
        <translation>Zeigen…</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>This section</source>
        <translation>Dieser Abschnitt</translation>
    </message>
    <message>
        <source>All sections</source>
        <translation>Alle Abschnitte</translation>
    </message>
    <message>
        <source>Settings as a file</source>
        <translation>Einstellungen als Datei</translation>
    </message>
    <message>
        <source>Speed, clicks, area</source>
        <translation>Tempo, Klicks, Bereich</translation>
    </message>
    <message>
        <source>Switch, keys</source>
        <translation>Schalter, Tasten</translation>
    </message>
    <message>
        <source>Lines, pointer</source>
        <translation>Linien, Zeiger</translation>
    </message>
    <message>
        <source>Twelve colours that are easy to tell apart.</source>
        <translation>Zwölf Farben, die sich gut unterscheiden lassen.</translation>
    </message>
    <message>
        <source>Buttons, size</source>
        <translation>Knöpfe, Größe</translation>
    </message>
    <message>
        <source>Compare the chosen profile</source>
        <translation>Das gewählte Profil vergleichen</translation>
    </message>
    <message>
        <source>Says how the chosen profile differs from another one, or from the settings as they are.</source>
        <translation>Sagt, wie sich das gewählte Profil von einem anderen unterscheidet oder von den Einstellungen, wie sie sind.</translation>
    </message>
    <message>
        <source>Compare with…</source>
        <translation>Vergleichen mit…</translation>
    </message>
    <message>
        <source>Sound, login, profiles</source>
        <translation>Ton, Anmeldung, Profile</translation>
    </message>
    <message>
        <source>Undoes the last change of this visit. Ctrl+Z does the same.</source>
        <translation>Macht die letzte Änderung dieses Besuchs rückgängig. Strg+Z tut dasselbe.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Undoes the last change of this visit. Ctrl+Z does the same.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Macht die letzte Änderung dieses Besuchs rückgängig. Strg+Z tut dasselbe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>Linie überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>Pointer crosses the screen in</source>
        <translation>Zeiger überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>Repeat an action every</source>
        <translation>Eine Aktion wiederholen alle</translation>
    </message>
    <message>
        <source>Resets every setting marked with a bar. You can undo that.</source>
        <translation>Setzt jede Einstellung zurück, die ein Balken markiert. Sie können das rückgängig machen.</translation>
    </message>
    <message>
        <source>Resets this section’s settings to their defaults.</source>
        <translation>Setzt die Einstellungen dieses Abschnitts auf den Standard zurück.</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkombinationen</translation>
    </message>
    <message>
        <source>Resets the hot key to its default.</source>
        <translation>Setzt die Tastenkombination auf den Standard zurück.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>They work everywhere. To change one, click it, or open the menu beside it and choose “Press new keys”. The next key that you press becomes the hot key. Without a keyboard, choose “Choose keys…”.</source>
        <translation>Sie wirken überall. Um eine zu ändern, klicken Sie darauf, oder öffnen Sie das Menü daneben und wählen „Neue Tasten drücken“. Die nächste Taste, die Sie drücken, gilt. Ohne Tastatur wählen Sie „Tasten wählen…“.</translation>
    </message>
    <message>
        <source>Gives the palette its five original buttons again.</source>
        <translation>Gibt der Palette ihre fünf ursprünglichen Knöpfe wieder.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the palette its five original buttons again.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gibt der Palette ihre fünf ursprünglichen Knöpfe wieder.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Corners of the buttons</source>
        <translation>Ecken der Knöpfe</translation>
    </message>
    <message>
        <source>Size of the buttons</source>
        <translation>Größe der Knöpfe</translation>
    </message>
    <message>
        <source>Width of the buttons</source>
        <translation>Breite der Knöpfe</translation>
    </message>
    <message>
        <source>Height of the buttons</source>
        <translation>Höhe der Knöpfe</translation>
    </message>
    <message>
        <source>Space around the edge</source>
        <translation>Abstand am Rand</translation>
    </message>
    <message>
        <source>Space between the buttons</source>
        <translation>Abstand zwischen den Knöpfen</translation>
    </message>
    <message>
        <source>Update this profile</source>
        <translation>Dieses Profil aktualisieren</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>Resets every setting marked with a bar, but not how Korvex starts.</source>
        <translation>Setzt jede Einstellung zurück, die ein Balken markiert, nur nicht, wie Korvex startet.</translation>
    </message>
    <message>
        <source>Resets every setting, but not how Korvex starts.</source>
        <translation>Setzt jede Einstellung zurück, nur nicht, wie Korvex startet.</translation>
    </message>
    <message>
        <source>Resets the settings of all sections to their defaults.</source>
        <translation>Setzt die Einstellungen aller Abschnitte auf den Standard zurück.</translation>
    </message>
    <message>
        <source>Opens the help’s page on this section in your web browser. F1 does the same, at the row that has the keyboard.</source>
        <translation>Öffnet die Seite der Hilfe zu diesem Abschnitt in Ihrem Webbrowser. F1 tut dasselbe, bei der Zeile, die die Tastatur hat.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Opens the help’s page on this section in your web browser. F1 does the same, at the row that has the keyboard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Öffnet die Seite der Hilfe zu diesem Abschnitt in Ihrem Webbrowser. F1 tut dasselbe, bei der Zeile, die die Tastatur hat.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Time to get ready, before the line and again before the pointer. 0 starts at once.</source>
        <translation>Zeit, sich bereit zu machen, vor der Linie und noch einmal vor dem Zeiger. 0 beginnt sofort.</translation>
    </message>
    <message>
        <source>Nothing moves until you press. Hold your switch for a second, or press the second one, to choose.</source>
        <translation>Nichts bewegt sich, bis Sie drücken. Zum Wählen halten Sie den Schalter eine Sekunde lang, oder drücken Sie den zweiten.</translation>
    </message>
    <message>
        <source>Click the nearest button</source>
        <translation>Auf die nächste Schaltfläche klicken</translation>
    </message>
    <message>
        <source>A click that comes near to one button hits its middle. A ring shows which.</source>
        <translation>Ein Klick, der einer Schaltfläche nahe kommt, trifft ihre Mitte. Ein Ring zeigt, welcher.</translation>
    </message>
</context>
<context>
    <name>Pointer</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>Pointers</name>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Arrow small</source>
        <translation>Pfeil, klein</translation>
    </message>
    <message>
        <source>Arrow large</source>
        <translation>Pfeil, groß</translation>
    </message>
    <message>
        <source>Arrow large white</source>
        <translation>Pfeil, groß, weiß</translation>
    </message>
    <message>
        <source>Arrow huge yellow</source>
        <translation>Pfeil, riesig, gelb</translation>
    </message>
    <message>
        <source>Arrow large see-through</source>
        <translation>Pfeil, groß, durchsichtig</translation>
    </message>
    <message>
        <source>Crosshair small</source>
        <translation>Fadenkreuz, klein</translation>
    </message>
    <message>
        <source>Crosshair large</source>
        <translation>Fadenkreuz, groß</translation>
    </message>
    <message>
        <source>Crosshair large white</source>
        <translation>Fadenkreuz, groß, weiß</translation>
    </message>
    <message>
        <source>Crosshair huge see-through</source>
        <translation>Fadenkreuz, riesig, durchsichtig</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Target huge</source>
        <translation>Zielscheibe, riesig</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Scan Line</source>
        <translation>Scanlinie</translation>
    </message>
    <message>
        <source>Guide Line</source>
        <translation>Führungslinie</translation>
    </message>
    <message>
        <source>Preview of the scan line</source>
        <translation>Vorschau der Scanlinie</translation>
    </message>
    <message>
        <source>Preview of the guide line</source>
        <translation>Vorschau der Führungslinie</translation>
    </message>
    <message>
        <source>%1 thick, %2 transparent, red %3, green %4, blue %5, each of 255.</source>
        <comment>as in 2 points thick, 50% transparent</comment>
        <translation>%1 dick, %2 transparent, Rot %3, Grün %4, Blau %5, jeweils von 255.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Left out: %1: %2.</source>
        <translation>Ausgelassen: %1: %2.</translation>
    </message>
    <message>
        <source>“%1” can’t be used: %2.</source>
        <translation>„%1“ kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>Nothing in “%1” differs from the settings.</source>
        <translation>Nichts in „%1“ weicht von den Einstellungen ab.</translation>
    </message>
    <message>
        <source>Use them</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>“%1” couldn’t be saved: %2.</source>
        <translation>„%1“ konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The settings are now in %1.</source>
        <translation>Die Einstellungen sind jetzt in %1.</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
    <message>
        <source>Profile: %1, changed</source>
        <translation>Profil: %1, geändert</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil: %1</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>„%1“ verwenden</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Zurück zu „%1“</translation>
    </message>
    <message>
        <source>“%1” is in use</source>
        <translation>„%1“ ist in Gebrauch</translation>
    </message>
    <message>
        <source>Save the changes in “%1”</source>
        <translation>Änderungen in „%1“ speichern</translation>
    </message>
    <message>
        <source>Save a profile…</source>
        <translation>Ein Profil speichern…</translation>
    </message>
    <message>
        <source>Save, rename, delete…</source>
        <translation>Speichern, umbenennen, löschen…</translation>
    </message>
    <message>
        <source>%1, in use, changed</source>
        <translation>%1, in Gebrauch, geändert</translation>
    </message>
    <message>
        <source>%1, in use</source>
        <translation>%1, in Gebrauch</translation>
    </message>
    <message>
        <source>The settings are those of “%1”.</source>
        <translation>Die Einstellungen sind die von „%1“.</translation>
    </message>
    <message>
        <source>“%1” would change:</source>
        <translation>„%1“ würde ändern:</translation>
    </message>
    <message>
        <source>“%1” is in use.</source>
        <translation>„%1“ ist in Gebrauch.</translation>
    </message>
    <message>
        <source>The settings are saved as “%1”.</source>
        <translation>Die Einstellungen sind als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>“%1” is as it was.</source>
        <translation>„%1“ ist, wie es war.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be renamed: %2.</source>
        <translation>„%1“ konnte nicht umbenannt werden: %2.</translation>
    </message>
    <message>
        <source>“%1” is now called “%2”.</source>
        <translation>„%1“ heißt jetzt „%2“.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be deleted: %2.</source>
        <translation>„%1“ konnte nicht gelöscht werden: %2.</translation>
    </message>
    <message>
        <source>“%1” is deleted. The settings stay as they are.</source>
        <translation>„%1“ ist gelöscht. Die Einstellungen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
    <message>
        <source>First type a name, or press one of the ready ones.</source>
        <translation>Tippen Sie zuerst einen Namen, oder drücken Sie einen der fertigen.</translation>
    </message>
    <message>
        <source>Which profile is in use can’t be kept: %1.</source>
        <translation>Welches Profil in Gebrauch ist, kann nicht festgehalten werden: %1.</translation>
    </message>
    <message>
        <source>The settings as they are</source>
        <translation>Die Einstellungen, wie sie sind</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same settings.</source>
        <translation>„%1“ und „%2“ haben dieselben Einstellungen.</translation>
    </message>
    <message>
        <source>“%1” in place of “%2” would change:</source>
        <translation>„%1“ anstelle von „%2“ würde ändern:</translation>
    </message>
    <message>
        <source>Your profiles can’t be read: %1.</source>
        <translation>Ihre Profile können nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <source>There is no profile yet. Save the settings as they are now, and come back to them with the Profiles menu.</source>
        <translation>Es gibt noch kein Profil. Speichern Sie die Einstellungen, wie sie jetzt sind, und kehren Sie mit dem Menü „Profile“ zu ihnen zurück.</translation>
    </message>
    <message>
        <source>“%1” is in use. It has changed:</source>
        <translation>„%1“ ist in Gebrauch. Geändert ist:</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Undo this</source>
        <translation>Dies rückgängig machen</translation>
    </message>
</context>
<context>
    <name>PutBackButton</name>
    <message>
        <source>Reset to its default</source>
        <translation>Auf den Standard zurückgesetzt</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Your last visit here ended before it could save. Its changes are here again.</source>
        <translation>Ihr letzter Besuch hier endete, bevor gespeichert werden konnte. Die Änderungen sind wieder da.</translation>
    </message>
</context>
<context>
    <name>ScanArea</name>
    <message>
        <source>Your current custom scan rectangle (if any) is shown in light blue.<byte value="xd"/>Click and drag across the desktop select a new area then<byte value="xd"/>press RETURN to accept it or ESC to cancel.</source>
        <translation>Ihr eigener Scanbereich (falls es einen gibt) ist hellblau gezeigt.<byte value="xd"/>Klicken Sie und ziehen Sie über den Schreibtisch, um einen neuen zu wählen.<byte value="xd"/>Dann nimmt RETURN ihn an, oder ESC bricht ab.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard. Close its menus, then try again.</source>
        <translation>Ein anderes Programm hält die Tastatur. Schließen Sie seine Menüs, dann versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This desktop lets no window cover the screens. Choose a part above and change its numbers; to draw an area, log in to a session with X11 (Xorg).</source>
        <translation>Auf diesem Desktop darf kein Fenster die Bildschirme bedecken. Wählen Sie oben einen Teil und ändern Sie seine Zahlen; zum Zeichnen melden Sie sich in einer Sitzung mit X11 (Xorg) an.</translation>
    </message>
    <message>
        <source>Whole screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Left half</source>
        <translation>Linke Hälfte</translation>
    </message>
    <message>
        <source>Right half</source>
        <translation>Rechte Hälfte</translation>
    </message>
    <message>
        <source>Top half</source>
        <translation>Obere Hälfte</translation>
    </message>
    <message>
        <source>Bottom half</source>
        <translation>Untere Hälfte</translation>
    </message>
    <message>
        <source>Left third</source>
        <translation>Linkes Drittel</translation>
    </message>
    <message>
        <source>Middle third</source>
        <translation>Mittleres Drittel</translation>
    </message>
    <message>
        <source>Right third</source>
        <translation>Rechtes Drittel</translation>
    </message>
    <message>
        <source>Top left quarter</source>
        <translation>Viertel links oben</translation>
    </message>
    <message>
        <source>Top right quarter</source>
        <translation>Viertel rechts oben</translation>
    </message>
    <message>
        <source>Bottom left quarter</source>
        <translation>Viertel links unten</translation>
    </message>
    <message>
        <source>Bottom right quarter</source>
        <translation>Viertel rechts unten</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, Bildschirm %2</translation>
    </message>
    <message>
        <source>The window used last</source>
        <translation>Das zuletzt benutzte Fenster</translation>
    </message>
    <message>
        <source>No area</source>
        <translation>Kein Bereich</translation>
    </message>
    <message>
        <source>Left %1, top %2, %3 by %4</source>
        <translation>Links %1, oben %2, %3 mal %4</translation>
    </message>
    <message>
        <source>Draw my own area</source>
        <translation>Meinen eigenen Bereich zeichnen</translation>
    </message>
    <message>
        <source>Arrow keys move a corner, with Shift the other one. Return keeps the area, Escape leaves it as it was.</source>
        <translation>Pfeiltasten bewegen eine Ecke, mit Umschalt die andere. Die Eingabetaste behält den Bereich, Esc lässt ihn, wie er war.</translation>
    </message>
    <message>
        <source>The height is missing.</source>
        <translation>Die Höhe fehlt.</translation>
    </message>
    <message>
        <source>The width is missing.</source>
        <translation>Die Breite fehlt.</translation>
    </message>
    <message>
        <source>What is scanned stays as it was.</source>
        <translation>Was gescannt wird, bleibt, wie es war.</translation>
    </message>
    <message>
        <source>Only your own area is scanned now: %1.</source>
        <translation>Nur Ihr eigener Bereich wird jetzt gescannt: %1.</translation>
    </message>
    <message>
        <source>You have no area of your own any more. The whole screen is scanned.</source>
        <translation>Sie haben keinen eigenen Bereich mehr. Der ganze Bildschirm wird gescannt.</translation>
    </message>
</context>
<context>
    <name>SectionFrame</name>
    <message>
        <source>Section: %1</source>
        <translation>Abschnitt: %1</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>none</source>
        <comment>an area</comment>
        <translation>keiner</translation>
    </message>
    <message>
        <source>%g × %g at %g, %g</source>
        <comment>width, height, x, y</comment>
        <translation>%g × %g bei %g; %g</translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation>Ein Ton bei jedem Klick</translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation>Hinweise beim Ziehen</translation>
    </message>
    <message>
        <source>Priority over other programs</source>
        <translation>Vorrang vor anderen Programmen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation>Auch die Menüleiste scannen</translation>
    </message>
    <message>
        <source>Shortest press that counts</source>
        <translation>Kürzester Druck, der zählt</translation>
    </message>
    <message>
        <source>Ignore presses after a click for</source>
        <translation>Drücken nach einem Klick ignorieren für</translation>
    </message>
    <message>
        <source>Wait before the scan starts</source>
        <translation>Warten, bevor der Scan beginnt</translation>
    </message>
    <message>
        <source>Wait after letting go</source>
        <translation>Warten nach dem Loslassen</translation>
    </message>
    <message>
        <source>Stop without a press for</source>
        <translation>Beenden ohne Druck nach</translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation>Auf Tasten hören</translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation>Auf Mausklicks hören</translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation>Ein Druck zählt</translation>
    </message>
    <message>
        <source>Second mouse button as a second switch</source>
        <translation>Zweite Maustaste als zweiter Schalter</translation>
    </message>
    <message>
        <source>My own area</source>
        <translation>Mein eigener Bereich</translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation>Der Linien-Scan beendet den Tastaturmodus</translation>
    </message>
    <message>
        <source>Speed in menus</source>
        <translation>Tempo in Menüs</translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation>Langsam beginnen, dann schneller werden</translation>
    </message>
    <message>
        <source>Length of a click</source>
        <translation>Länge eines Klicks</translation>
    </message>
    <message>
        <source>Pause between clicks</source>
        <translation>Pause zwischen Klicks</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>Liniendicke</translation>
    </message>
    <message>
        <source>Scan line transparency</source>
        <translation>Transparenz der Scanlinie</translation>
    </message>
    <message>
        <source>Guide line transparency</source>
        <translation>Transparenz der Führungslinie</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkombinationen</translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation>Palettenknöpfe</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>icon and name</source>
        <translation>Bild und Name</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%d × %d points</source>
        <translation>%d × %d Punkte</translation>
    </message>
    <message>
        <source>Start Korvex when you log in</source>
        <translation>Korvex beim Anmelden starten</translation>
    </message>
    <message>
        <source>Turn scanning on when Korvex starts</source>
        <translation>Scannen einschalten, wenn Korvex startet</translation>
    </message>
    <message>
        <source>none</source>
        <comment>keys</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>none</source>
        <comment>buttons</comment>
        <translation>keine</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>what is chosen</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Palette button %1</source>
        <comment>its number</comment>
        <translation>Palettenknopf %1</translation>
    </message>
    <message>
        <source>Scanning with Korvex</source>
        <translation>Mit Korvex scannen</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Art zu scannen</translation>
    </message>
    <message>
        <source>What is scanned</source>
        <translation>Was gescannt wird</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>Linie überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>Pointer crosses the screen in</source>
        <translation>Zeiger überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>Repeat an action every</source>
        <translation>Eine Aktion wiederholen alle</translation>
    </message>
    <message>
        <source>Space around the edge</source>
        <translation>Abstand am Rand</translation>
    </message>
    <message>
        <source>Space between the buttons</source>
        <translation>Abstand zwischen den Knöpfen</translation>
    </message>
    <message>
        <source>Size of the buttons</source>
        <translation>Größe der Knöpfe</translation>
    </message>
    <message>
        <source>Corners of the buttons</source>
        <translation>Ecken der Knöpfe</translation>
    </message>
    <message>
        <source>Shown on the buttons</source>
        <translation>Auf den Knöpfen gezeigt</translation>
    </message>
    <message>
        <source>Show the icon</source>
        <translation>Bild zeigen</translation>
    </message>
    <message>
        <source>Show the name</source>
        <translation>Namen zeigen</translation>
    </message>
    <message>
        <source>Click the nearest button</source>
        <translation>Auf die nächste Schaltfläche klicken</translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>Hide this</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>Switch</name>
    <message>
        <source>Scanning is off. %1 switches it on again.</source>
        <translation>Das Scannen ist aus. %1 schaltet es wieder ein.</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Ready for your switch</source>
        <translation>Bereit für Ihren Schalter</translation>
    </message>
    <message>
        <source>Korvex is starting…</source>
        <translation>Korvex startet…</translation>
    </message>
    <message>
        <source>Korvex isn’t running</source>
        <translation>Korvex läuft nicht</translation>
    </message>
    <message>
        <source>Nothing scans: no agent is installed</source>
        <translation>Nichts scannt: Kein Agent ist installiert</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>No press is heard</source>
        <translation>Keine Betätigung wird gehört</translation>
    </message>
    <message>
        <source>Scanning is off, and only this window switches it on again.</source>
        <translation>Das Scannen ist aus, und nur dieses Fenster schaltet es wieder ein.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again.</source>
        <translation>Das Scannen ist aus. Halten Sie den Schalter vier Sekunden lang, um es wieder einzuschalten.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again, or press %1.</source>
        <translation>Das Scannen ist aus. Halten Sie den Schalter vier Sekunden lang, um es wieder einzuschalten, oder drücken Sie %1.</translation>
    </message>
    <message>
        <source>No agent is installed, so nothing scans. You can make all settings.</source>
        <translation>Kein Agent ist installiert, also scannt nichts. Alle Einstellungen lassen sich machen.</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Korvex has ended by itself, so nothing is scanned now.</source>
        <translation>Korvex hat sich von selbst beendet, also wird jetzt nichts gescannt.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Neither a key nor a mouse click starts a scan now. Keep this? It goes back in 30 seconds.</source>
        <translation>Weder eine Taste noch ein Mausklick startet jetzt einen Scan. So behalten? In 30 Sekunden wird es zurückgestellt.</translation>
    </message>
    <message>
        <source>There is no scan key now, and mouse clicks don’t start a scan. Keep this? It goes back in 30 seconds.</source>
        <translation>Es gibt jetzt keine Scan-Taste, und Mausklicks starten keinen Scan. So behalten? In 30 Sekunden wird es zurückgestellt.</translation>
    </message>
    <message>
        <source>Only a tiny area is scanned now. Keep this? It goes back in 30 seconds.</source>
        <translation>Nur ein winziger Bereich wird jetzt gescannt. So behalten? In 30 Sekunden wird es zurückgestellt.</translation>
    </message>
    <message>
        <source>Keep this</source>
        <translation>So behalten</translation>
    </message>
    <message>
        <source>Put it back</source>
        <translation>Zurückstellen</translation>
    </message>
</context>
<context>
    <name>Troubles</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>no permission for %1</source>
        <translation>keine Erlaubnis für %1</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translation>%1 kann nur gelesen werden</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>ein anderes Programm verwendet die Datei</translation>
    </message>
    <message>
        <source>%1 is something else than expected</source>
        <translation>%1 ist etwas anderes als erwartet</translation>
    </message>
    <message>
        <source>%1 would become too large</source>
        <translation>%1 würde zu groß</translation>
    </message>
    <message>
        <source>Your settings file was damaged and is kept as %1. The usual settings are shown instead.</source>
        <translation>Ihre Einstellungsdatei war beschädigt und ist als %1 aufbewahrt. Gezeigt werden die üblichen Einstellungen.</translation>
    </message>
    <message>
        <source>Your settings file %1 is damaged. The usual settings are shown instead; the file will be kept beside the new one.</source>
        <translation>Ihre Einstellungsdatei %1 ist beschädigt. Gezeigt werden die üblichen Einstellungen; die Datei wird neben der neuen aufbewahrt.</translation>
    </message>
    <message>
        <source>Your settings can’t be read: %1. The usual settings are shown instead.</source>
        <translation>Ihre Einstellungen können nicht gelesen werden: %1. Gezeigt werden die üblichen Einstellungen.</translation>
    </message>
    <message>
        <source>What you change here can’t be saved: %1.</source>
        <translation>Was Sie hier ändern, kann nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>Save a copy of the settings</source>
        <translation>Eine Kopie der Einstellungen speichern</translation>
    </message>
    <message>
        <source>Your settings aren’t saved: %1.</source>
        <translation>Ihre Einstellungen sind nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>A copy of your settings is now in %1.</source>
        <translation>Eine Kopie Ihrer Einstellungen ist jetzt in %1.</translation>
    </message>
    <message>
        <source>The copy couldn’t be saved: %1.</source>
        <translation>Die Kopie konnte nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>%1 didn’t start, so nothing is scanned now.</source>
        <translation>%1 ist nicht gestartet, darum wird jetzt nichts gescannt.</translation>
    </message>
    <message>
        <source>%1 has ended by itself several times, so nothing is scanned now.</source>
        <translation>%1 hat sich mehrmals selbst beendet, darum wird jetzt nichts gescannt.</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>%1 starten</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Your settings couldn’t be saved: %1. This window stays open, so that nothing is lost.</source>
        <translation>Ihre Einstellungen konnten nicht gespeichert werden: %1. Dieses Fenster bleibt offen, damit nichts verloren geht.</translation>
    </message>
    <message>
        <source>Save a copy…</source>
        <translation>Eine Kopie speichern…</translation>
    </message>
    <message>
        <source>Should this window crash, your last changes would be lost: %1.</source>
        <translation>Sollte dieses Fenster abstürzen, gingen Ihre letzten Änderungen verloren: %1.</translation>
    </message>
</context>
<context>
    <name>Try</name>
    <message>
        <source>This try couldn’t be stored.</source>
        <translation>Dieser Versuch konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Your tries stay on this computer.</source>
        <translation>Ihre Versuche bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Im Fenster</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>The copy couldn’t be written.</source>
        <translation>Die Kopie konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>All tries are deleted.</source>
        <translation>Alle Versuche sind gelöscht.</translation>
    </message>
    <message>
        <source>The tries couldn’t be deleted.</source>
        <translation>Die Versuche konnten nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Früh</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Spät</translation>
    </message>
    <message>
        <source>The mark is %.1f mm from the top.</source>
        <translation>Die Marke ist %.1f mm vom oberen Rand entfernt.</translation>
    </message>
    <message>
        <source>Press early, and let go when the line is on the mark.</source>
        <translation>Drücken Sie früh, und lassen Sie los, wenn die Linie auf der Marke ist.</translation>
    </message>
    <message>
        <source>Hold your switch down to start the line, and let go when it is on the mark.</source>
        <translation>Halten Sie den Schalter gedrückt, um die Linie zu starten, und lassen Sie los, wenn sie auf der Marke ist.</translation>
    </message>
    <message>
        <source>Press when the line is on the mark.</source>
        <translation>Drücken Sie, wenn die Linie auf der Marke ist.</translation>
    </message>
    <message>
        <source>A line will sweep from top to bottom. %s The first two sweeps are for getting used to it. Press any key or button when you are ready.</source>
        <translation>Eine Linie läuft von oben nach unten. %s Die ersten zwei Durchläufe sind zum Eingewöhnen. Drücken Sie eine Taste oder einen Knopf, wenn Sie bereit sind.</translation>
    </message>
    <message>
        <source>Ready. Hold for free sweep %d of %d, when you like.</source>
        <translation>Bereit. Halten Sie für den freien Durchlauf %d von %d, wann Sie möchten.</translation>
    </message>
    <message>
        <source>Ready. Press for free sweep %d of %d, when you like.</source>
        <translation>Bereit. Drücken Sie für den freien Durchlauf %d von %d, wann Sie möchten.</translation>
    </message>
    <message>
        <source>Ready. Hold for sweep %d of %d, when you like.</source>
        <translation>Bereit. Halten Sie für Durchlauf %d von %d, wann Sie möchten.</translation>
    </message>
    <message>
        <source>Ready. Press for sweep %d of %d, when you like.</source>
        <translation>Bereit. Drücken Sie für Durchlauf %d von %d, wann Sie möchten.</translation>
    </message>
    <message>
        <source>The line passed.</source>
        <translation>Die Linie ist vorbeigelaufen.</translation>
    </message>
    <message>
        <source>On the mark.</source>
        <translation>Auf der Marke.</translation>
    </message>
    <message>
        <source>%.0f mm before the mark.</source>
        <translation>%.0f mm vor der Marke.</translation>
    </message>
    <message>
        <source>%.0f mm past the mark.</source>
        <translation>%.0f mm hinter der Marke.</translation>
    </message>
    <message>
        <source>Your presses all came at the same moment, as far as this computer can tell.</source>
        <translation>Ihre Betätigungen kamen alle im selben Moment, soweit dieser Computer es sagen kann.</translation>
    </message>
    <message>
        <source>A slower line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation>Eine langsamere Linie passt wohl besser zu Ihnen. Probieren Sie es mit %.1f Sekunden, dann können wir es sagen.</translation>
    </message>
    <message>
        <source>A quicker line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation>Eine schnellere Linie passt wohl besser zu Ihnen. Probieren Sie es mit %.1f Sekunden, dann können wir es sagen.</translation>
    </message>
    <message>
        <source>You pressed in %d of %zu sweeps. From %d on we can suggest a speed. Try once more when you like; a slower line gives you more time.</source>
        <translation>Sie haben in %d von %zu Durchläufen gedrückt. Ab %d können wir ein Tempo vorschlagen. Versuchen Sie es noch einmal, wenn Sie möchten; eine langsamere Linie gibt Ihnen mehr Zeit.</translation>
    </message>
    <message>
        <source>%zu of %zu presses came when nothing asked for them. Before the speed, make the presses steadier.</source>
        <translation>%zu von %zu Betätigungen kamen, als nichts danach fragte. Sorgen Sie vor dem Tempo für ruhigere Betätigungen.</translation>
    </message>
    <message>
        <source>Ready for the next press after %.1f seconds.</source>
        <translation>Bereit für den nächsten Druck nach %.1f Sekunden.</translation>
    </message>
    <message>
        <source>Ignoring presses for %.1f seconds after a click would catch most of those that nothing asked for.</source>
        <translation>Würden Betätigungen %.1f Sekunden nach einem Klick nicht beachtet, fielen die meisten ungewollten weg.</translation>
    </message>
    <message>
        <source>A shortest press of %.1f seconds would, too.</source>
        <translation>Ein kürzester Druck von %.1f Sekunden hätte dieselbe Wirkung.</translation>
    </message>
    <message>
        <source>They last as long as your other presses, so no shortest press tells them apart.</source>
        <translation>Sie dauern so lange wie Ihre anderen Betätigungen, darum unterscheidet kein kürzester Druck sie.</translation>
    </message>
    <message>
        <source>Lateness %.0f ms, spread %.0f ms (%.0f ms at most), from %d presses.</source>
        <translation>Verspätung %.0f ms, Streuung %.0f ms (höchstens %.0f ms), aus %d Betätigungen.</translation>
    </message>
    <message>
        <source>The presses came at other moments than the marks, so we can’t suggest a speed. Wait for the line to reach the mark, then press.</source>
        <translation>Die Betätigungen kamen in anderen Momenten als die Marken, darum können wir kein Tempo vorschlagen. Warten Sie, bis die Linie die Marke erreicht, dann drücken Sie.</translation>
    </message>
    <message>
        <source>The presses became less even from sweep to sweep. Have a rest, then try once more.</source>
        <translation>Die Betätigungen wurden von Durchlauf zu Durchlauf ungleichmäßiger. Ruhen Sie sich aus, dann versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Wait for the line.</source>
        <translation>Warten Sie auf die Linie.</translation>
    </message>
    <message>
        <source>Go.</source>
        <translation>Los.</translation>
    </message>
    <message>
        <source>%s: %.1f seconds, hits: %.0f, misses: %.0f, lateness %.0f ms, spread %.0f ms</source>
        <translation>%s: %.1f Sekunden, getroffen: %.0f, daneben: %.0f, Verspätung %.0f ms, Streuung %.0f ms</translation>
    </message>
    <message>
        <source>%1. Undo takes it back. Try once more before you change anything else.</source>
        <translation>%1. „Rückgängig“ nimmt es zurück. Versuchen Sie es noch einmal, bevor Sie etwas anderes ändern.</translation>
    </message>
    <message>
        <source>As you have set it, each press moves the scan one step, and no speed matters. Here you can try a line that sweeps: press when it is on the mark.</source>
        <translation>So wie Sie es eingestellt haben, rückt jeder Druck den Scan einen Schritt weiter, und kein Tempo spielt eine Rolle. Hier können Sie eine Linie probieren, die durchläuft: Drücken Sie, wenn sie auf der Marke ist.</translation>
    </message>
    <message>
        <source>You stopped within %g mm of the mark in %d of %zu sweeps.</source>
        <translation>Im Abstand von höchstens %g mm zur Marke haben Sie bei %d von %zu Durchläufen angehalten.</translation>
    </message>
    <message>
        <source>That is for a line that sweeps; as you have set it, it moves one step a press.</source>
        <translation>Das gilt für eine Linie, die durchläuft; so wie Sie es eingestellt haben, rückt sie mit jedem Druck einen Schritt weiter.</translation>
    </message>
    <message>
        <source>You are having a rest, and your switch scans as ever. Press here to go on.</source>
        <translation>Sie machen eine Pause, und Ihr Schalter scannt wie immer. Drücken Sie hier, um weiterzumachen.</translation>
    </message>
    <message>
        <source>Target: a palette button, %g mm high</source>
        <translation>Ziel: ein Palettenknopf, %g mm hoch</translation>
    </message>
    <message>
        <source>Target: %g mm</source>
        <translation>Ziel: %g mm</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>Die Linie</translation>
    </message>
    <message>
        <source>After a miss it took %.1f seconds to go on.</source>
        <translation>Nach einem Fehlschlag dauerte es %.1f Sekunden, bis es weiterging.</translation>
    </message>
    <message>
        <source>On this desktop no window can keep keys for itself, so your switch may scan as well meanwhile.</source>
        <translation>Auf diesem Desktop kann kein Fenster Tasten für sich behalten, darum scannt Ihr Schalter vielleicht auch währenddessen.</translation>
    </message>
    <message>
        <source>The line started, but nothing stopped it. %s Try once more when you like.</source>
        <translation>Die Linie lief los, aber nichts hielt sie an. %s Versuchen Sie es noch einmal, wenn Sie möchten.</translation>
    </message>
    <message>
        <source>Spread of your presses, up to %.0f ms</source>
        <translation>Streuung Ihrer Betätigungen, bis %.0f ms</translation>
    </message>
    <message>
        <source>The pointer’s speed is too far from the line’s to say how many clicks will hit.</source>
        <translation>Die Geschwindigkeit des Zeigers ist zu weit von der der Linie entfernt, um zu sagen, wie viele Klicks treffen.</translation>
    </message>
    <message>
        <source>It must last for %.1f seconds.</source>
        <translation>Er muss %.1f Sekunden dauern.</translation>
    </message>
    <message>
        <source>Any key but Tab and Escape is a press, and any mouse button on the picture.</source>
        <translation>Als Druck zählt jede Taste außer Tab und Esc, und jede Maustaste auf dem Bild.</translation>
    </message>
    <message>
        <source>Whether your switch arrives is shown by “First steps”, in the section “General”. Escape leaves.</source>
        <translation>Ob Ihr Schalter ankommt, zeigt „Erste Schritte“ im Abschnitt „Allgemein“. Esc verlässt die Seite.</translation>
    </message>
    <message>
        <source>Two sweeps went by without a press. To leave, press now. To go on, wait %.0f seconds.</source>
        <translation>Zwei Durchläufe vergingen ohne Druck. Zum Verlassen drücken Sie jetzt. Zum Weitermachen warten Sie %.0f Sekunden.</translation>
    </message>
    <message>
        <source>To leave, hold your switch down for %.0f seconds between two sweeps.</source>
        <translation>Zum Verlassen halten Sie den Schalter zwischen zwei Durchläufen %.0f Sekunden gedrückt.</translation>
    </message>
    <message>
        <source>To leave, hold your switch down until the line has passed, and %.0f seconds more.</source>
        <translation>Zum Verlassen halten Sie den Schalter gedrückt, bis die Linie vorbei ist, und noch %.0f Sekunden.</translation>
    </message>
    <message>
        <source>To leave at any time, hold your switch down for %.0f seconds.</source>
        <translation>Zum Verlassen halten Sie jederzeit den Schalter %.0f Sekunden gedrückt.</translation>
    </message>
    <message>
        <source>Let go, and you leave.</source>
        <translation>Lassen Sie los, dann verlassen Sie die Seite.</translation>
    </message>
    <message>
        <source>Hold on to leave, or let go to stay.</source>
        <translation>Weiter halten verlässt die Seite, Loslassen bleibt.</translation>
    </message>
    <message>
        <source>No press has counted yet.</source>
        <translation>Noch kein Druck hat gezählt.</translation>
    </message>
    <message>
        <source>%s | %.1f s | %.0f of %.0f | %.0f ms | %.0f ms</source>
        <translation>%s | %.1f s | %.0f von %.0f | %.0f ms | %.0f ms</translation>
    </message>
    <message>
        <source>Date | Line | Hits | Lateness | Spread</source>
        <translation>Datum | Linie | Treffer | Verspätung | Streuung</translation>
    </message>
    <message>
        <source>Set “%1”
to %2</source>
        <translation>„%1“
auf %2 setzen</translation>
    </message>
    <message>
        <source>Use %.1f s and try</source>
        <translation>%.1f s nehmen und probieren</translation>
    </message>
    <message>
        <source>Keep %.1f s</source>
        <translation>%.1f s behalten</translation>
    </message>
    <message>
        <source>%d in 10, at least %d</source>
        <translation>%d von 10, mindestens %d</translation>
    </message>
    <message>
        <source>%.1f seconds suits you: we expect %s.</source>
        <translation>%.1f Sekunden passen zu Ihnen: Wir erwarten %s.</translation>
    </message>
    <message>
        <source>At %.1f seconds we expect %s. At %.1f seconds, as it is now: %s.</source>
        <translation>Bei %.1f Sekunden erwarten wir %s. Bei %.1f Sekunden, wie jetzt: %s.</translation>
    </message>
    <message>
        <source>Line and pointer together, with the pointer at %.1f s: %s.</source>
        <translation>Linie und Zeiger zusammen, mit dem Zeiger bei %.1f Sekunden: %s.</translation>
    </message>
    <message>
        <source>Line and pointer together, with the pointer at %.1f s instead of %.1f: %s.</source>
        <translation>Linie und Zeiger zusammen, mit dem Zeiger bei %.1f statt %.1f Sekunden: %s.</translation>
    </message>
    <message>
        <source>At least %d in 10 takes %.1f seconds.</source>
        <translation>Mindestens %d von 10 brauchen %.1f Sekunden.</translation>
    </message>
    <message>
        <source>At least %d clicks in 10 takes %.1f seconds for the line and %.1f for the pointer.</source>
        <translation>Für mindestens %d von 10 Klicks braucht die Linie %.1f Sekunden und der Zeiger %.1f.</translation>
    </message>
    <message>
        <source>Even at %.0f seconds, the slowest, we can’t expect 3 clicks in 4 to hit. Targets of %.0f mm would make it so.</source>
        <translation>Auch bei %.0f Sekunden, der langsamsten Linie, erwarten wir keine 3 von 4 Klicks als Treffer. Mit Zielen von %.0f mm wäre es so.</translation>
    </message>
    <message>
        <source>Even at %.0f seconds, the slowest, we can’t expect 3 in 4. Targets of %.0f mm would make it so.</source>
        <translation>Auch bei %.0f Sekunden, der langsamsten Linie, erwarten wir keine 3 von 4. Mit Zielen von %.0f mm wäre es so.</translation>
    </message>
    <message>
        <source>This counts presses beside a button that stands alone: they click it, too.</source>
        <translation>Dabei zählen auch Betätigungen neben einer Schaltfläche, die allein steht: Sie treffen sie ebenfalls.</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <comment>as in 1 to 60 seconds</comment>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>as in 0 to 100</comment>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>axreq</name>
    <message>
        <source>Korvex</source>
        <translation>Korvex</translation>
    </message>
    <message>
        <source>Assistive access is switched off</source>
        <translation>Der Zugriff für unterstützende Technologien ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Don’t show this again</source>
        <translation>Nicht mehr zeigen</translation>
    </message>
    <message>
        <source>Takes effect when you choose “Not now”.</source>
        <translation>Wirkt, wenn Sie „Nicht jetzt“ wählen.</translation>
    </message>
    <message>
        <source>&amp;Don’t show this again</source>
        <translation>Nicht &amp;mehr zeigen</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Shows where assistive access is switched on.</source>
        <translation>Zeigt, wo der Zugriff für unterstützende Technologien eingeschaltet wird.</translation>
    </message>
    <message>
        <source>Open sett&amp;ings</source>
        <translation>&amp;Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Closes this notice until tomorrow. The Escape key does the same.</source>
        <translation>Schließt diesen Hinweis bis morgen. Die Esc-Taste tut dasselbe.</translation>
    </message>
    <message>
        <source>&amp;Not now</source>
        <translation>&amp;Nicht jetzt</translation>
    </message>
    <message>
        <source>Korvex needs it to find the windows, menus and buttons on your screen. While it is off, Korvex can’t scan. “Open settings” shows you where to switch it on. This notice closes by itself half a minute after your last key or press in it.</source>
        <translation>Korvex braucht ihn, um Fenster, Menüs und Knöpfe auf Ihrem Bildschirm zu finden. Solange er aus ist, kann Korvex nicht scannen. „Einstellungen öffnen“ zeigt, wo man ihn einschaltet. Dieser Hinweis schließt sich von selbst eine halbe Minute nach der letzten Taste oder dem letzten Klick darin.</translation>
    </message>
    <message>
        <source>Switch it on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Switches assistive access on, where the desktop lets a program do so. Else it opens the settings.</source>
        <translation>Schaltet den Zugriff ein, wo der Desktop es einem Programm erlaubt. Sonst öffnet es die Einstellungen.</translation>
    </message>
    <message>
        <source>&amp;Switch it on</source>
        <translation>Ein&amp;schalten</translation>
    </message>
</context>
<context>
    <name>firststeps</name>
    <message>
        <source>First steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>Welcome to Korvex</source>
        <translation>Willkommen bei Korvex</translation>
    </message>
    <message>
        <source>1. See your switch answer</source>
        <translation>1. Sehen, wie Ihr Schalter antwortet</translation>
    </message>
    <message>
        <source>Press your switch</source>
        <translation>Ihren Schalter drücken</translation>
    </message>
    <message>
        <source>Answers any key and button, and this button’s press action. Tab goes on.</source>
        <translation>Antwortet auf jede Taste, jede Maustaste und die Drück-Aktion dieses Knopfs. Tab geht weiter.</translation>
    </message>
    <message>
        <source>2. Choose how you press</source>
        <translation>2. Wählen, wie Sie drücken</translation>
    </message>
    <message>
        <source>How your switch controls the scan.</source>
        <translation>Wie Ihr Schalter den Scan steuert.</translation>
    </message>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Drücken zum Starten, drücken zum Wählen</translation>
    </message>
    <message>
        <source>The scan moves by itself. Press once to start it and again at the thing you want.</source>
        <translation>Der Scan läuft von selbst. Drücken Sie einmal zum Starten und noch einmal beim Gewünschten.</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Halten zum Scannen, loslassen zum Wählen</translation>
    </message>
    <message>
        <source>The scan moves while you hold your switch down and stops when you let go.</source>
        <translation>Der Scan läuft, solange Sie den Schalter halten, und hält beim Loslassen an.</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Jeder Druck geht einen Schritt weiter</translation>
    </message>
    <message>
        <source>Nothing moves until you press, so there is no moment to miss.</source>
        <translation>Nichts bewegt sich, bis Sie drücken; Sie können keinen Moment verpassen.</translation>
    </message>
    <message>
        <source>3. Set a speed</source>
        <translation>3. Ein Tempo einstellen</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>Linie überquert den Bildschirm in</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>kürzer</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>länger</translation>
    </message>
    <message>
        <source>Begin slowly. More time makes it easier to stop the line in the right place.</source>
        <translation>Beginnen Sie langsam. Mit mehr Zeit lässt sich die Linie leichter an der richtigen Stelle anhalten.</translation>
    </message>
    <message>
        <source>Not sure?</source>
        <translation>Nicht sicher?</translation>
    </message>
    <message>
        <source>Press your switch a few times and see which speed suits you. That leaves this page.</source>
        <translation>Drücken Sie einige Male Ihren Schalter und sehen Sie, welches Tempo zu Ihnen passt. Dabei verlassen Sie diese Seite.</translation>
    </message>
    <message>
        <source>Find my speed</source>
        <translation>Mein Tempo finden</translation>
    </message>
    <message>
        <source>Find my speed…</source>
        <translation>Mein Tempo finden…</translation>
    </message>
    <message>
        <source>4. Know where help is</source>
        <translation>4. Wissen, wo Hilfe ist</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Says what each setting does. F1 opens it at any time.</source>
        <translation>Sagt, was jede Einstellung bewirkt. F1 öffnet sie jederzeit.</translation>
    </message>
    <message>
        <source>Open help</source>
        <translation>Hilfe öffnen</translation>
    </message>
    <message>
        <source>Korvex’s agent</source>
        <translation>Der Agent von Korvex</translation>
    </message>
    <message>
        <source>About the agent</source>
        <translation>Über den Agenten</translation>
    </message>
    <message>
        <source>Goes to the settings. What you changed here stays.</source>
        <translation>Geht zu den Einstellungen. Was Sie hier geändert haben, bleibt.</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Art zu scannen</translation>
    </message>
    <message>
        <source>A line sweeps across the screen, and a press of your switch chooses what it touches. Five steps are enough to begin. All of it can be changed later, and this page is found again under General.</source>
        <translation>Eine Linie läuft über den Bildschirm, und ein Druck auf Ihren Schalter wählt, was sie berührt. Für den Anfang genügen fünf Schritte. Alles lässt sich später ändern, und diese Seite finden Sie unter „Allgemein“ wieder.</translation>
    </message>
    <message>
        <source>A program of its own that does the scanning, also when this window is closed. Here you set how.</source>
        <translation>Ein eigenes Programm, das scannt, auch wenn dieses Fenster geschlossen ist. Hier stellen Sie ein, wie.</translation>
    </message>
    <message>
        <source>5. Scan for the first time</source>
        <translation>5. Zum ersten Mal scannen</translation>
    </message>
    <message>
        <source>Your first scan</source>
        <translation>Ihr erster Scan</translation>
    </message>
    <message>
        <source>Press your switch: the line starts. Press again when it is on this button, and once more when the pointer is.</source>
        <translation>Drücken Sie Ihren Schalter: Die Linie startet. Drücken Sie wieder, wenn sie auf diesem Knopf ist, und noch einmal, wenn der Zeiger es ist.</translation>
    </message>
    <message>
        <source>Hit me</source>
        <translation>Triff mich</translation>
    </message>
</context>
<context>
    <name>tryout</name>
    <message>
        <source>Find my speed</source>
        <translation>Mein Tempo finden</translation>
    </message>
    <message>
        <source>Gives the line the whole screen, as in use.</source>
        <translation>Gibt der Linie den ganzen Bildschirm, wie im Gebrauch.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Verlassen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Press any key or button, or use this button’s press action. Escape leaves.</source>
        <translation>Drücken Sie eine Taste oder einen Knopf, oder nutzen Sie die Drück-Aktion dieses Knopfs. Esc verlässt die Seite.</translation>
    </message>
    <message>
        <source>Sets the line scan time and lets you try it. You can go back at any time.</source>
        <translation>Stellt die Zeit des Linien-Scans ein und lässt Sie sie probieren. Sie können jederzeit zurück.</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Starts another try with the same settings.</source>
        <translation>Beginnt einen weiteren Versuch mit denselben Einstellungen.</translation>
    </message>
    <message>
        <source>Once more</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Your tries</source>
        <translation>Ihre Versuche</translation>
    </message>
    <message>
        <source>One line a try, the last one at the end. The arrow keys go through them.</source>
        <translation>Eine Zeile je Versuch, der letzte am Ende. Die Pfeiltasten gehen durch die Liste.</translation>
    </message>
    <message>
        <source>Writes a copy of all tries to your documents.</source>
        <translation>Schreibt eine Kopie aller Versuche in Ihre Dokumente.</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>Deletes what this page has kept of your tries.</source>
        <translation>Löscht, was diese Seite von Ihren Versuchen behalten hat.</translation>
    </message>
    <message>
        <source>Delete all tries</source>
        <translation>Alle Versuche löschen</translation>
    </message>
    <message>
        <source>Changes this setting, and nothing else. Undo takes it back.</source>
        <translation>Ändert diese Einstellung und sonst nichts. „Rückgängig“ nimmt es zurück.</translation>
    </message>
    <message>
        <source>Target, smaller</source>
        <translation>Ziel, kleiner</translation>
    </message>
    <message>
        <source>For a smaller mark, by a millimetre.</source>
        <translation>Für eine kleinere Marke, um einen Millimeter.</translation>
    </message>
    <message>
        <source>Target, larger</source>
        <translation>Ziel, größer</translation>
    </message>
    <message>
        <source>For a larger mark, by a millimetre.</source>
        <translation>Für eine größere Marke, um einen Millimeter.</translation>
    </message>
    <message>
        <source>Makes the mark as high as a button of the palette.</source>
        <translation>Macht die Marke so hoch wie einen Knopf der Palette.</translation>
    </message>
    <message>
        <source>As a palette button</source>
        <translation>Wie ein Palettenknopf</translation>
    </message>
    <message>
        <source>Goes back to the settings, which stay as they are. From eight presses on the try is kept among your tries.</source>
        <translation>Geht zu den Einstellungen zurück, die bleiben, wie sie sind. Ab acht Betätigungen bleibt der Versuch unter Ihren Versuchen.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The settings stay as they are. From eight presses on the try is kept among your tries.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Die Einstellungen bleiben, wie sie sind. Ab acht Betätigungen bleibt der Versuch unter Ihren Versuchen.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
