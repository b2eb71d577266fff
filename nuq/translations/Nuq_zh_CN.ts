<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>The value of %1 is not valid UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of %1 has to be a whole number from %2 to %3, but it is &quot;%4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of %1 has to be one of %2, but it is &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must not be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Did you mean &quot;%2&quot;?</source>
        <extracomment>%1 is a complaint, %2 what the user most likely meant</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; takes no further argument &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command &quot;%1&quot; needs %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command line cannot be understood: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Show this help and end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version and end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the result as one JSON document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write errors only, no notes and no hints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show details of errors; twice: the log as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of texts and names; by default that of the environment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use colours; auto means: only on a terminal, and not when NO_COLOR is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time limit of one request, 1 to 3600; by default 30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never ask a question; fail instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open no network connection; commands that need one fail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application folder with the environment files; by default NUQ_APP_DIR or the installed one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Environment to work in; by default NUQ_ENVIRONMENT, the settings, or prod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>look around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the category tree with counts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first components of a category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every component that matches, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>find out why something does not work</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the categories with the number of their components</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The count of a category covers its own components and those of the categories below it, each once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count only components that match this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the categories as a tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the library&apos;s public category service, which knows no codes and reports no errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the whole tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>where pumps are found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all codes, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show one component with its family types and thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of the component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The component is one of this project&apos;s library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one component of the public catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List components of a category, a search or a project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without --all one page is shown. With --all --json --stream each line is one JSON document, the last one a summary or the error, and memory stays small however long the list is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only components of this category and those below it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only components that match this text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library of this project instead of the public catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page to show, from 1; by default 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Components of a page, 1 to 200; by default 20, with --all 200</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List all pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --all --json: one JSON document a line, as soon as it is there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first page of a category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the second page of a search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the beginning of the whole catalogue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check settings, addresses, network, sign-in and folders, and say what to mend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends with exit code 7 when a check found a fault. Nothing is changed on the server, and no secret is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one line a check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the environment: addresses, folders, where the sign-in comes from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens no connection and shows no token; &quot;nuq doctor&quot; checks what is shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the current environment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell in which projects a public component is already used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer &quot;no&quot; is an answer: the exit code is 0 then, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of the public component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask only about this project; by default about all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one line a project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the collaboration projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ids are what the option --project of other commands takes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ids and names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the properties that components of a category have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code of the category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the property template of the cloud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the template of an end category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the family types of a component with their values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value that the family type does not give is shown as &quot;-&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the family type of this name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all family types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look around: categories, components, one component, its values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the tour in Chinese</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the versions of the program and of what it runs on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for a report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorDetails</name>
    <message>
        <source>code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTTP status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server&apos;s code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server&apos;s message: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>original text: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tries: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>nuq - the component library in the terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of all commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;nuq COMMAND --help&quot; shows the options of a command.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>--tree and --service cannot be used together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue has no categories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The public category service gave no categories, and it does not say why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without --service the program names the reason.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no components here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No component matches &quot;%1&quot; here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last page is page %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1-%2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue changed while it was listed; list again to be sure that nothing is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--all and --page cannot be used together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--stream needs --all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 (%2) does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correct --app-dir or NUQ_APP_DIR, or install the program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not there, defaults are used)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy what is worth keeping from the file that was set aside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend or remove the settings file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend that source of the token; no other one is asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No token is set up for this environment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set NUQ_TOKEN_QA or NUQ_TOKEN_QA_FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set NUQ_TOKEN or NUQ_TOKEN_FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let only yourself read the file (chmod 600).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the rights of the folder and the space on its disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused, because there is no usable token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faults: %1. Warnings: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command &quot;properties&quot; needs --cloud: this program has no local property database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The category has no properties of its own; end categories have them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The component has no family types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 components ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. The catalogue: %1 categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. %1: %2 components, the first %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3. One of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4. Its values as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next: &quot;nuq --help&quot; for all commands, &quot;--json&quot; for scripts, &quot;nuq doctor&quot; if something fails.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>&quot;nuq --help&quot; shows what is possible.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A command is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The server cannot answer now; try %1 in %2 s ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading ... %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading ... %1 (%2 %)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the server ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COUNT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Family types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CATEGORY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VERSION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FOUND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Environment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known environments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Structure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PROJECT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EXISTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PARAMETER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
