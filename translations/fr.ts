<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Changes</name>
    <message>
        <source>The palette has the buttons again that Korvex came with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put it back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, and 1 setting more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 back to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n settings more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Press to start, press to choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When I press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Colour</name>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>every key needs a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows every setting: its key, value, default, range and what it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the value of settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEY VALUE…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts settings back to their defaults; &quot;all&quot; stands for all of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the settings to a file; - stands for standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what a file would change; with --yes, changes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list|use|save|rename|delete [NAME…]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists and uses named states of the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the completion for bash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints the manual page&apos;s part on commands and settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: korvex-preferences COMMAND [--json] [--yes] …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>doesn&apos;t ask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See korvex-preferences help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing differs from the settings as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (in use)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed. With --yes it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>profile list, use NAME, save NAME, rename NAME NEW or delete NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>; default: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can&apos;t store the settings in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Faults</name>
    <message>
        <source>the change can&apos;t be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the open window doesn&apos;t answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the open window doesn&apos;t take the change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a name has no slash and no control character, and doesn&apos;t begin with a point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no profile of that name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a profile of that name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>outside %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an action that there isn&apos;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a number in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a value of this setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no setting of this version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a file of settings, or it can&apos;t be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message>
        <source>%.0f points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%5.1f sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3.0f%%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3.0f points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%3.0f ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host</name>
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvex.prefPane: not found beside this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is open already, but doesn&apos;t answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no section &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the settings aren&apos;t saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>First choose “Choose keys…” in the menu beside a hot key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New keys for “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use it here and remove it there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back what was here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press new keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose keys…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listening: press the new hot key, one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too. %1 seconds left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⚠ The same keys as %1. The menu beside it offers to use them here alone, or to put back what was here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now %1. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capturing: press the new keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second scan key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>caps lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>control+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shift+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>option+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> keypad </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> fn </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-none-</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NSColorWell</name>
    <message>
        <source>Red %1, green %2, blue %3, each of 255</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>As in &quot;Line scan time, longer&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, much %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>%1 less</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 to %2 can be set.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>%1 points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the button to swap with button %1. The same button again, or Escape, cancels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen: button %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a button to change it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>number and name of a button</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Pane</name>
    <message>
        <source>Korvex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses another section of the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning with Korvex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Off stops scanning and keeps all settings. Hold Alt (Option) while you click to quit Korvex itself, or to start it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns scanning off and on. Your settings stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops scanning. With Alt held, quits Korvex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes Korvex ready to scan. With Alt held, starts Korvex if it is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the last change of this visit back. Ctrl+Z does the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the last change of this visit back. Ctrl+Z does the same.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a change again that was undone. Ctrl+Shift+Z does the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Makes a change again that was undone. Ctrl+Shift+Z does the same.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the Korvex help in your web browser. F1 does the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Opens the Korvex help in your web browser.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections of the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The arrow keys choose a section.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Line crosses the screen in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shorter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>longer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line scan time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More time makes it easier to stop the line in the right place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;At 60 seconds, pressing one second late moves the line by only a sixtieth of the screen.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer &amp;crosses the screen in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer scan time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once you have stopped the line, the pointer moves along it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Many people need as long here as for the line, because this press decides where the click lands.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed in &amp;menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>faster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100% is as fast as on the rest of the screen. Menu items are small, so slower is easier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Below 100 a menu gives you more time than the rest of the screen; above 100 it saves waiting.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives you time for things near the start without a long wait for those far away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press your switch a few times and see which speed suits you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find my speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find my speed…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pauses and clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wait before the scan starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time to get ready after your first press. 0 starts at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Enough to settle back and look at the screen before anything moves.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;epeat an action every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time between repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions such as scrolling go on at this pace until you press again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Short suits scrolling; long leaves time to stop after a single repeat.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of a clic&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long Korvex holds the mouse button down. Make it longer if a program misses clicks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;A few programs, games above all, miss a click of less than 50; above 300 many see a long press.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is scanned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which part of the screen is scanned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line crosses the whole screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A smaller area takes less time. You can choose this once an area has been drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scans only that part from now on: the whole screen, a half, a third or a quarter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The arrow keys go from one to the next; Space chooses it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My own area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag across the screen, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width × height at left, top, in points on the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw my own area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Covers the screen. Drag across it, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Draw…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn this off if you never use the menu bar and want it skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting the scan line then leaves the on-screen keyboard, so you need no extra step to get back to the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;resses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How your switch controls the scan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press to start, press to choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scan moves by itself. Press once to start it and again at the thing you want.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose “let go” if you can time that better.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used by this way of scanning only. Choose “let go” if you can time that better.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When I press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scan moves while you hold your switch down and stops when you let go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait after &amp;letting go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press again within this time to go on. After it, Korvex chooses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;A few seconds let you put right a hand that slipped off the switch.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing moves until you press, so there is no moment to miss.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop without a press &amp;for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scan ends after this time without a press.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;A long time lets you rest between steps; a short one clears the screen soon after you stop.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steadier presses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortest press that &amp;counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorter ones, as from a tremor, are ignored. 0 counts all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;A few tenths of a second filter out most tremor; more than a second makes every press deliberate.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ignore presses after a click for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops an unwanted second press from counting. 0 ignores none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Half a second stops most accidental double presses; longer leaves time for a spasm to pass.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For a switch or switch box that types a key. Leave this or mouse clicks on, or nothing you press will start a scan.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For a switch that is connected as a mouse button, or for the mouse itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys that work everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press the new hot key: one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the hot key as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes back to the usual hot key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the hot key away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To change a hot key, click it, or open the menu beside it and choose “Press new keys”. The next key that you press becomes the hot key. Without a keyboard, choose “Choose keys…”. In its name, “command” is the Super or Windows key and “option” is Alt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sca&amp;n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts a scan and stops it: the key that your switch types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Click, then press the new keys.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan, s&amp;econd key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does the same, for a second switch or a key in another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan, second key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: Scan, second key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ancel the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the line away without a click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: Cancel the scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Turn scanning on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Does what the switch at the top of this window does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: Turn scanning on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w these settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens this window from wherever you are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change: Show these settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To hold while the key is pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command (Super)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>option (Alt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key that you choose becomes the hot key, with the boxes that are ticked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to see the other line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With it are two sample buttons and the pointer. Shows the other line when pressed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan line and guide line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Line colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a colour that stands out from your windows and desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strong colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twelve colours that stand out from one another as far as colours can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strong line colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line &amp;thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thinner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thicker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A thick line is easier to see; a thin one hides less.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan line transparenc&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more solid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0% is solid. A higher value lets you see what is beneath the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;It stops short of 100 so that the scan line can never vanish.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gui&amp;de line transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The guide line goes with the scan line. 100% hides it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;At 100 the guide line is invisible, for those whom a second line distracts.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poi&amp;nter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What moves along the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the pointer before this one. Before the first comes the last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses the pointer after this one. After the last comes the first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All pointers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a large one, or one whose colour you find quickly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The palette’s buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corners of the palette’s buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shape of each button of the palette.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each button of the palette shows the picture of its action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each button of the palette shows the name of its action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger buttons are easier to see and to hit. 20 to 100 points each way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>narrower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette buttons’ width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wider buttons have room for longer names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>higher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette buttons’ height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Higher buttons have room for a larger icon above the name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Around the edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space around the edge of the palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Between the buttons and the edge of the palette.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Between the buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space between palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More space makes it harder to hit the wrong button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The nine places of the palette. The arrow keys move between them, Space chooses one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts a new button before the chosen one or, with none chosen, after the last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts a new button before the chosen one or, with none chosen, after the last.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the chosen button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the chosen button another action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the chosen button another action.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cha&amp;nge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the chosen button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the chosen button away; those after it move up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the chosen button away; those after it move up.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap the chosen button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then choose the button that it is to change places with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Then choose the button that it is to change places with.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;wap…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the five buttons back that Korvex came with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts the five buttons back that Korvex came with.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;eset all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new button goes before the chosen one. With none chosen it goes after the last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells you that Korvex has clicked, even when you look elsewhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tells you when something was picked up and let go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quieter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>louder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How loud these sounds are, from 0, silent, to 100.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;At 50 there is room to go louder in a noisy place and quieter at night.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting Korvex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Korvex when you log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your switch works from the first moment, and nobody has to start Korvex for you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn scanning on when Korvex starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Otherwise Korvex waits until you turn scanning on, here or with its key.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Pointer</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Scan Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of the scan line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of the guide line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%d points thick, %.0f%% transparent, red %u, green %u, blue %u, each of 255.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Your last visit here ended before it could save. Its changes are here again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanArea</name>
    <message>
        <source>Your current custom scan rectangle (if any) is shown in light blue.<byte value="xd"/>Click and drag across the desktop select a new area then<byte value="xd"/>press RETURN to accept it or ESC to cancel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program holds the keyboard. Close its menus, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop lets no window cover the screens. Log in to a session with X11 (Xorg) to draw an area.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left half</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right half</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top half</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom half</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left third</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle third</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right third</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SectionFrame</name>
    <message>
        <source>Section: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>none</source>
        <comment>an area</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%g × %g at %g, %g</source>
        <comment>width, height, x, y</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority over other programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan from the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortest press that counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore presses after a click for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait before the scan starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait after letting go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop without a press for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second mouse button as a second switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My own area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line scan time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer scan time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed in menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time between repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length of a click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause between clicks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan line transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guide line transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space around the edge of the palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space between palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corners of palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown on palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>icon and name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%d × %d points</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n buttons</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>Hide this</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Switch</name>
    <message>
        <source>Scanning is off. %1 switches it on again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning is off, and no hot key switches it on again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready for your switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your switch does nothing now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvex is starting…</source>
        <translation>Korvex démarre…</translation>
    </message>
    <message>
        <source>Korvex isn’t running</source>
        <translation>Korvex n’est pas en marche</translation>
    </message>
</context>
<context>
    <name>Troubles</name>
    <message>
        <source>%1 is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no permission for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is something else than expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would become too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings file was damaged and is kept as %1. The usual settings are shown instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings file %1 is damaged. The usual settings are shown instead; the file will be kept beside the new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings can’t be read: %1. The usual settings are shown instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you change here can’t be saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a copy of the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings aren’t saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of your settings is now in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy couldn’t be saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 didn’t start, so nothing is scanned now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has ended by itself several times, so nothing is scanned now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings couldn’t be saved: %1. This window stays open, so that nothing is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a copy…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Try</name>
    <message>
        <source>Spread of your presses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try it at %.1f</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep %.1f</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This try couldn’t be stored. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your tries stay on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy couldn’t be written. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All tries are deleted. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tries couldn’t be deleted. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mark is %.1f mm from the top.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press early, and let go when the line is on the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold your switch down to start the line, and let go when it is on the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press when the line is on the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line will sweep from top to bottom. %s The first two sweeps are for getting used to it. Press any key or button when you are ready.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready. Hold for free sweep %d of %d, when you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready. Press for free sweep %d of %d, when you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready. Hold for sweep %d of %d, when you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready. Press for sweep %d of %d, when you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The line passed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%.0f mm before the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%.0f mm past the mark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You stopped within %.0f mm of the mark %d times in %zu. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your presses all came at the same moment, as far as this computer can tell. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%.1f seconds suits you: we expect at least %d in 10.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%.1f seconds suits you: we expect %d in 10, and at least %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %.1f seconds we expect at least %d in 10.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %.1f seconds we expect %d in 10, and at least %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A slower line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quicker line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even at %.0f seconds, the slowest, we can’t expect 3 in 4. Targets %.0f mm wide would make it so, or a scan area only %.0f mm across.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You pressed in %d of %zu sweeps. From %d on we can suggest a speed. Try once more when you like; a slower line gives you more time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%zu of %zu presses came when nothing asked for them. Before the speed, make the presses steadier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready for the next press after %.1f seconds. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignoring presses for %.1f seconds after a click would catch most of those that nothing asked for. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shortest press of %.1f seconds would, too. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They last as long as your other presses, so no shortest press tells them apart. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lateness %.0f ms, spread %.0f ms (%.0f ms at most), from %d presses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %d in 10 takes %.1f seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No press arrived. Look whether your switch is connected and counts as a trigger, then try once more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presses came at other moments than the marks, so we can’t suggest a speed. Wait for the line to reach the mark, then press.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The presses became less even from sweep to sweep. Have a rest, then try once more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait for the line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s: %.1f seconds, %.0f hits and %.0f misses, lateness %.0f ms, spread %.0f ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%s   %.1f s   %.0f of %.0f   spread %.0f ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <comment>as in 1 to 60 seconds</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>as in 0 to 100</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>axreq</name>
    <message>
        <source>Korvex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assistive access is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvex needs it to find the windows, menus and buttons on your screen. While it is off, Korvex can’t scan. “Open settings” shows you where to switch it on. This notice closes by itself after half a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don’t show this again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes effect when you choose “Not now”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don’t show this again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows where assistive access is switched on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open sett&amp;ings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes this notice until tomorrow. The Escape key does the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Not now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tryout</name>
    <message>
        <source>Find my speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the line the whole screen, as in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes back to the settings. Nothing changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press any key or button, or use this button’s press action. Escape leaves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the line scan time and lets you try it. You can go back at any time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts another try with the same settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your tries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One line a try, the last one at the end. The arrow keys go through them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes a copy of all tries to your documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes what this page has kept of your tries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all tries</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
