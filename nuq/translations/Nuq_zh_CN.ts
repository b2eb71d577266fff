<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>The value of %1 is not valid UTF-8.</source>
        <translation>%1 的值不是有效的 UTF-8。</translation>
    </message>
    <message>
        <source>The value of %1 has to be a whole number from %2 to %3, but it is "%4".</source>
        <translation>%1 的值必须是 %2 到 %3 的整数，而给出的是“%4”。</translation>
    </message>
    <message>
        <source>The value of %1 has to be one of %2, but it is "%3".</source>
        <translation>%1 的值必须是 %2 之一，而给出的是“%3”。</translation>
    </message>
    <message>
        <source>%1 must not be empty.</source>
        <translation>%1 不能为空。</translation>
    </message>
    <message>
        <source>%1 Did you mean "%2"?</source>
        <extracomment>%1 is a complaint, %2 what the user most likely meant</extracomment>
        <translation>%1是否想用“%2”？</translation>
    </message>
    <message>
        <source>There is no option "%1".</source>
        <translation>没有选项“%1”。</translation>
    </message>
    <message>
        <source>The command "%1" takes no further argument "%2".</source>
        <translation>命令“%1”不接受多余的参数“%2”。</translation>
    </message>
    <message>
        <source>There is no command "%1".</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>The command "%1" needs %2.</source>
        <translation>命令“%1”需要 %2。</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>选项 %1 需要一个值。</translation>
    </message>
    <message>
        <source>The command line cannot be understood: %1.</source>
        <translation>无法理解命令行：%1。</translation>
    </message>
    <message>
        <source>The option %1 takes no value.</source>
        <translation>选项 %1 不带值。</translation>
    </message>
    <message>
        <source>The option %1 needs a value. If "%2" is the value, join them with an equals sign.</source>
        <translation>选项 %1 需要一个值。如果“%2”就是这个值，请用等号连接。</translation>
    </message>
    <message>
        <source>The command "%1" needs one of these words behind it: %2.</source>
        <translation>命令“%1”之后需要以下词之一：%2。</translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Show this help and end</source>
        <translation>显示此帮助并结束</translation>
    </message>
    <message>
        <source>Show the version and end</source>
        <translation>显示版本并结束</translation>
    </message>
    <message>
        <source>Write the result as one JSON document</source>
        <translation>把结果写成一个 JSON 文档</translation>
    </message>
    <message>
        <source>Write errors only, no notes and no hints</source>
        <translation>只显示错误，不显示备注和提示</translation>
    </message>
    <message>
        <source>Show details of errors; twice: the log as well</source>
        <translation>显示错误的详细信息；用两次则同时显示日志</translation>
    </message>
    <message>
        <source>Language of texts and names; by default that of the environment</source>
        <translation>文字和名称的语言；默认取自系统环境</translation>
    </message>
    <message>
        <source>Use colours; auto means: only on a terminal, and not when NO_COLOR is set</source>
        <translation>使用颜色；auto 表示仅在终端上且未设置 NO_COLOR 时</translation>
    </message>
    <message>
        <source>Time limit of one request, 1 to 3600; by default 30</source>
        <translation>一次请求的时间限制，1 到 3600；默认 30</translation>
    </message>
    <message>
        <source>Never ask a question; fail instead</source>
        <translation>从不提问，改为失败</translation>
    </message>
    <message>
        <source>Open no network connection; commands that need one fail</source>
        <translation>不打开网络连接；需要连接的命令会失败</translation>
    </message>
    <message>
        <source>Application folder with the environment files; by default NUQ_APP_DIR or the installed one</source>
        <translation>含环境文件的应用程序文件夹；默认为 NUQ_APP_DIR 或安装的文件夹</translation>
    </message>
    <message>
        <source>Environment to work in; by default NUQ_ENVIRONMENT, the settings, or prod</source>
        <translation>工作环境；默认为 NUQ_ENVIRONMENT、设置或 prod</translation>
    </message>
    <message>
        <source>look around</source>
        <translation>四处看看</translation>
    </message>
    <message>
        <source>the category tree with counts</source>
        <translation>带数量的类别树</translation>
    </message>
    <message>
        <source>the first components of a category</source>
        <translation>某类别的前几个构件</translation>
    </message>
    <message>
        <source>every component that matches, for a script</source>
        <translation>所有匹配的构件，供脚本使用</translation>
    </message>
    <message>
        <source>find out why something does not work</source>
        <translation>查明为何出错</translation>
    </message>
    <message>
        <source>List the categories with the number of their components</source>
        <translation>列出类别及其构件数量</translation>
    </message>
    <message>
        <source>The count of a category covers its own components and those of the categories below it, each once. With --keyword only the categories with matching components are listed, and those above them.</source>
        <translation>类别的数量包括它自己的构件和下级类别的构件，每个只计一次。带 --keyword 时只列出有匹配构件的类别及其上级类别。</translation>
    </message>
    <message>
        <source>Count only components that match this text</source>
        <translation>只计匹配此文字的构件</translation>
    </message>
    <message>
        <source>Show the categories as a tree</source>
        <translation>以树形显示类别</translation>
    </message>
    <message>
        <source>Ask the library's public category service, which knows no codes and reports no errors</source>
        <translation>询问程序库的公共类别服务，它不提供编码，也不报告错误</translation>
    </message>
    <message>
        <source>the whole tree</source>
        <translation>整棵树</translation>
    </message>
    <message>
        <source>where pumps are found</source>
        <translation>泵在哪里</translation>
    </message>
    <message>
        <source>all codes, for a script</source>
        <translation>所有编码，供脚本使用</translation>
    </message>
    <message>
        <source>Show one component with its family types and thumbnails</source>
        <translation>显示一个构件及其族类型和缩略图</translation>
    </message>
    <message>
        <source>The id of the component</source>
        <translation>构件的编号</translation>
    </message>
    <message>
        <source>The component is one of this project's library</source>
        <translation>该构件属于此项目的库</translation>
    </message>
    <message>
        <source>one component of the public catalogue</source>
        <translation>公共目录中的一个构件</translation>
    </message>
    <message>
        <source>the same for a script</source>
        <translation>同上，供脚本使用</translation>
    </message>
    <message>
        <source>List components of a category, a search or a project</source>
        <translation>列出类别、搜索或项目的构件</translation>
    </message>
    <message>
        <source>Without --all one page is shown. With --all --json the document is written page by page; with --stream as well each line is one JSON document, the last one a summary or the error. Memory stays small however long the list is.</source>
        <translation>不带 --all 时显示一页。带 --all --json 时文档逐页写出；再带 --stream 时每行是一个 JSON 文档，最后一行是汇总或错误。无论列表多长，占用的内存都很小。</translation>
    </message>
    <message>
        <source>Only components of this category and those below it</source>
        <translation>只列此类别及其下级类别的构件</translation>
    </message>
    <message>
        <source>Only components that match this text</source>
        <translation>只列匹配此文字的构件</translation>
    </message>
    <message>
        <source>The library of this project instead of the public catalogue</source>
        <translation>用此项目的库代替公共目录</translation>
    </message>
    <message>
        <source>Page to show, from 1; by default 1</source>
        <translation>要显示的页，从 1 开始；默认 1</translation>
    </message>
    <message>
        <source>Components of a page, 1 to 200; by default 20, with --all 200</source>
        <translation>每页构件数，1 到 200；默认 20，带 --all 时 200</translation>
    </message>
    <message>
        <source>List all pages</source>
        <translation>列出所有页</translation>
    </message>
    <message>
        <source>With --all --json: one JSON document a line, as soon as it is there</source>
        <translation>与 --all --json 同用：每行一个 JSON 文档，到达即输出</translation>
    </message>
    <message>
        <source>the first page of a category</source>
        <translation>某类别的第一页</translation>
    </message>
    <message>
        <source>the second page of a search</source>
        <translation>搜索的第二页</translation>
    </message>
    <message>
        <source>the beginning of the whole catalogue</source>
        <translation>整个目录的开头</translation>
    </message>
    <message>
        <source>Check settings, addresses, network, sign-in and folders, and say what to mend</source>
        <translation>检查设置、地址、网络、登录和文件夹，并说明如何修复</translation>
    </message>
    <message>
        <source>Ends with exit code 7 when a check found a fault. Nothing is changed on the server, and no secret is shown.</source>
        <translation>发现故障时以退出码 7 结束。不改变服务器上的任何内容，也不显示任何机密。</translation>
    </message>
    <message>
        <source>one line a check</source>
        <translation>每项检查一行</translation>
    </message>
    <message>
        <source>for support</source>
        <translation>供技术支持使用</translation>
    </message>
    <message>
        <source>Show the environment: addresses, folders, where the sign-in comes from</source>
        <translation>显示环境：地址、文件夹、登录来源</translation>
    </message>
    <message>
        <source>Opens no connection and shows no token; "nuq doctor" checks what is shown here.</source>
        <translation>不打开连接，也不显示令牌；“nuq doctor”会检查这里显示的内容。</translation>
    </message>
    <message>
        <source>the current environment</source>
        <translation>当前环境</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>另一个环境</translation>
    </message>
    <message>
        <source>Tell in which projects a public component is already used</source>
        <translation>说明公共构件已用于哪些项目</translation>
    </message>
    <message>
        <source>The answer "no" is an answer: the exit code is 0 then, too.</source>
        <translation>“否”也是回答：此时退出码同样为 0。</translation>
    </message>
    <message>
        <source>The id of the public component</source>
        <translation>公共构件的编号</translation>
    </message>
    <message>
        <source>Ask only about this project; by default about all</source>
        <translation>只询问此项目；默认询问所有项目</translation>
    </message>
    <message>
        <source>one line a project</source>
        <translation>每个项目一行</translation>
    </message>
    <message>
        <source>true or false, for a script</source>
        <translation>true 或 false，供脚本使用</translation>
    </message>
    <message>
        <source>List the collaboration projects</source>
        <translation>列出协作项目</translation>
    </message>
    <message>
        <source>The ids are what the option --project of other commands takes.</source>
        <translation>其他命令的 --project 选项使用这些编号。</translation>
    </message>
    <message>
        <source>ids and names</source>
        <translation>编号和名称</translation>
    </message>
    <message>
        <source>Show the properties that components of a category have</source>
        <translation>显示某类别构件所具有的属性</translation>
    </message>
    <message>
        <source>The code of the category</source>
        <translation>类别的编码</translation>
    </message>
    <message>
        <source>Take the property template of the cloud</source>
        <translation>使用云端的属性模板</translation>
    </message>
    <message>
        <source>the template of an end category</source>
        <translation>末级类别的模板</translation>
    </message>
    <message>
        <source>Show the family types of a component with their values</source>
        <translation>显示构件的族类型及其参数值</translation>
    </message>
    <message>
        <source>A value that the family type does not give is shown as "-".</source>
        <translation>族类型未给出的值显示为“-”。</translation>
    </message>
    <message>
        <source>Only the family type of this name</source>
        <translation>只显示此名称的族类型</translation>
    </message>
    <message>
        <source>all family types</source>
        <translation>所有族类型</translation>
    </message>
    <message>
        <source>one of them</source>
        <translation>其中之一</translation>
    </message>
    <message>
        <source>Look around: categories, components, one component, its values</source>
        <translation>四处看看：类别、构件、一个构件及其参数值</translation>
    </message>
    <message>
        <source>the tour</source>
        <translation>导览</translation>
    </message>
    <message>
        <source>the tour in Chinese</source>
        <translation>中文导览</translation>
    </message>
    <message>
        <source>Show the versions of the program and of what it runs on</source>
        <translation>显示程序及其运行环境的版本</translation>
    </message>
    <message>
        <source>for a report</source>
        <translation>用于报告</translation>
    </message>
    <message>
        <source>With --keyword: list the categories without a match as well</source>
        <translation>与 --keyword 同用：也列出没有匹配的类别</translation>
    </message>
    <message>
        <source>Show how much the thumbnail cache holds, or empty it</source>
        <translation>显示缩略图缓存的大小，或清空缓存</translation>
    </message>
    <message>
        <source>The cache looks after itself: beyond its limit the pictures go first that were not used for longest. Family files are not in it.</source>
        <translation>缓存会自行清理：超过上限时，最久未用的图片最先被移除。族文件不在其中。</translation>
    </message>
    <message>
        <source>"clear" removes all thumbnails; without it nothing is changed</source>
        <translation>“clear” 移除所有缩略图；不给出时不作任何更改</translation>
    </message>
    <message>
        <source>folder, size and limit</source>
        <translation>文件夹、大小和上限</translation>
    </message>
    <message>
        <source>remove all thumbnails</source>
        <translation>移除所有缩略图</translation>
    </message>
    <message>
        <source>Fetch the thumbnail of a component, or a picture by its address</source>
        <translation>获取构件的缩略图，或按地址获取图片</translation>
    </message>
    <message>
        <source>The picture is kept in the cache, from where it comes the next time, also offline.</source>
        <translation>图片保存在缓存中，下次直接从缓存读取，离线时也可用。</translation>
    </message>
    <message>
        <source>The id of a component, or an address that begins with http:// or https://</source>
        <translation>构件编号，或以 http:// 或 https:// 开头的地址</translation>
    </message>
    <message>
        <source>Write the picture there, in the format that the suffix names; - is standard output</source>
        <translation>把图片写到该文件，格式由扩展名决定；- 表示标准输出</translation>
    </message>
    <message>
        <source>Longest side, 1 to 4096: a larger picture is made smaller</source>
        <translation>最长边的像素数，1 到 4096：更大的图片会被缩小</translation>
    </message>
    <message>
        <source>the largest thumbnail of a component, as a file</source>
        <translation>构件最大的缩略图，存为文件</translation>
    </message>
    <message>
        <source>a small one, for another program</source>
        <translation>小缩略图，交给另一个程序</translation>
    </message>
    <message>
        <source>into the cache only, and say where it lies</source>
        <translation>只放入缓存，并说明其位置</translation>
    </message>
    <message>
        <source>Check whether specifications yield a geometry, and say why not</source>
        <translation>检查规格能否建模，不能时说明原因</translation>
    </message>
    <message>
        <source>A copy of the family file is asked, which is removed afterwards. Ends with exit code 7 when a specification yields no geometry or a file cannot be used.</source>
        <translation>检查的是族文件的副本，之后会删除副本。有规格不能建模或文件不可用时，退出码为 7。</translation>
    </message>
    <message>
        <source>The family file, or a folder with family files</source>
        <translation>族文件，或含有族文件的文件夹</translation>
    </message>
    <message>
        <source>A type of the family, or a JSON file with specifications; by default all types of the family</source>
        <translation>族的一个类型，或含有规格的 JSON 文件；默认为族的全部类型</translation>
    </message>
    <message>
        <source>all types of a family</source>
        <translation>一个族的全部类型</translation>
    </message>
    <message>
        <source>one of them, with its values</source>
        <translation>其中之一及其各值</translation>
    </message>
    <message>
        <source>what the catalogue offers</source>
        <translation>目录提供的规格</translation>
    </message>
    <message>
        <source>Put the pictures or drawings of many families on one sheet</source>
        <translation>把多个族的图片或图纸排成一张总图</translation>
    </message>
    <message>
        <source>Of each family the first type is shown. With --files picture files of a name are put on the sheet, for example the thumbnails of a library.</source>
        <translation>每个族显示其首个类型。使用 --files 时，把某个名称的图片文件排成总图，例如库的缩略图。</translation>
    </message>
    <message>
        <source>A folder with family files, or one such file</source>
        <translation>含有族文件的文件夹，或一个族文件</translation>
    </message>
    <message>
        <source>The file to write, *.png</source>
        <translation>要写入的文件，*.png</translation>
    </message>
    <message>
        <source>Shaded pictures, or three drawings of each family; by default pictures</source>
        <translation>着色图片，或每个族的三张图纸；默认为图片</translation>
    </message>
    <message>
        <source>Picture files of this name below the folder instead, for example 128.png</source>
        <translation>改用文件夹下此名称的图片文件，例如 128.png</translation>
    </message>
    <message>
        <source>Pictures side by side, 1 to 100; by default 8, for drawings 6</source>
        <translation>每行图片数，1 到 100；默认 8，图纸为 6</translation>
    </message>
    <message>
        <source>Side of each picture, 16 to 512; by default 128</source>
        <translation>每张图片的边长，16 到 512；默认 128</translation>
    </message>
    <message>
        <source>On dark ground</source>
        <translation>深色背景</translation>
    </message>
    <message>
        <source>all families of a folder</source>
        <translation>文件夹中的全部族</translation>
    </message>
    <message>
        <source>their drawings</source>
        <translation>它们的图纸</translation>
    </message>
    <message>
        <source>the thumbnails of a library</source>
        <translation>一个库的缩略图</translation>
    </message>
    <message>
        <source>Draw a view of a family with hidden lines, centre lines and connectors</source>
        <translation>绘制族的一个视图，含隐藏线、中心线和接口</translation>
    </message>
    <message>
        <source>The ending of the output says the kind: .svg for a drawing in millimetres, .png for a picture with transparent background.</source>
        <translation>输出文件的后缀决定类型：.svg 为以毫米为单位的图纸，.png 为透明背景的图片。</translation>
    </message>
    <message>
        <source>The family file</source>
        <translation>族文件</translation>
    </message>
    <message>
        <source>The file to write, *.svg or *.png</source>
        <translation>要写入的文件，*.svg 或 *.png</translation>
    </message>
    <message>
        <source>From above, from the front or from the right; by default plan</source>
        <translation>从上方、前方或右方观察；默认为平面图</translation>
    </message>
    <message>
        <source>The type that is drawn; by default the first</source>
        <translation>要绘制的类型；默认为首个类型</translation>
    </message>
    <message>
        <source>Side of a picture, 16 to 4096; by default 512</source>
        <translation>图片的边长，16 到 4096；默认 512</translation>
    </message>
    <message>
        <source>the front as a drawing</source>
        <translation>正面的图纸</translation>
    </message>
    <message>
        <source>another type from above as a picture</source>
        <translation>另一个类型的俯视图片</translation>
    </message>
    <message>
        <source>Show what a family file holds: parameters, types, geometry, connectors</source>
        <translation>显示族文件的内容：参数、类型、几何模型、接口</translation>
    </message>
    <message>
        <source>The values are those of one type. Parameters with a formula are computed from the others. No geometry is built.</source>
        <translation>显示的是一个类型的值。带公式的参数由其他参数计算得出。不会建模。</translation>
    </message>
    <message>
        <source>The type whose values are shown; by default the first</source>
        <translation>显示其值的类型；默认为首个类型</translation>
    </message>
    <message>
        <source>the values of the first type</source>
        <translation>首个类型的值</translation>
    </message>
    <message>
        <source>those of another type, for a script</source>
        <translation>另一个类型的值，供脚本使用</translation>
    </message>
    <message>
        <source>Make a family file from its description: parameters, types, recipe</source>
        <translation>由描述（参数、类型、建模步骤）生成族文件</translation>
    </message>
    <message>
        <source>The description is JSON. Formulas, recipe and every type are checked, the geometry is built, pictures and drawings are made. docs/family-files.md describes all of it and has a tutorial.</source>
        <translation>描述是 JSON。会检查公式、建模步骤和每个类型，进行建模，并生成图片和图纸。docs/family-files.md 有完整说明和教程。</translation>
    </message>
    <message>
        <source>The description, *.json</source>
        <translation>描述，*.json</translation>
    </message>
    <message>
        <source>The family file to write, *.nuqfamily</source>
        <translation>要写入的族文件，*.nuqfamily</translation>
    </message>
    <message>
        <source>Replace a file that is there already</source>
        <translation>替换已有的文件</translation>
    </message>
    <message>
        <source>a new family</source>
        <translation>一个新的族</translation>
    </message>
    <message>
        <source>Compute the driven parameters of a specification, before and after</source>
        <translation>计算规格中被驱动的参数，显示前后的值</translation>
    </message>
    <message>
        <source>The family computes them from the values of the specification; what changes is marked. The family file stays as it is.</source>
        <translation>由族根据规格的值计算；有变化的会标出。族文件保持不变。</translation>
    </message>
    <message>
        <source>A type of the family, or a JSON file with one specification; by default the first type</source>
        <translation>族的一个类型，或含有一个规格的 JSON 文件；默认为首个类型</translation>
    </message>
    <message>
        <source>Write the computed specification there, as JSON</source>
        <translation>把计算后的规格以 JSON 写到该文件</translation>
    </message>
    <message>
        <source>the values before and after</source>
        <translation>计算前后的值</translation>
    </message>
    <message>
        <source>and the specification as it is then</source>
        <translation>并写出计算后的规格</translation>
    </message>
    <message>
        <source>Check family files through and through</source>
        <translation>彻底检查族文件</translation>
    </message>
    <message>
        <source>The container, the manifest, formulas, the values of every type, the recipe, the geometry of every type, pictures and drawings. Ends with exit code 7 when a check found a fault.</source>
        <translation>检查容器、清单、公式、每个类型的值、建模步骤、每个类型的几何模型、图片和图纸。发现错误时退出码为 7。</translation>
    </message>
    <message>
        <source>Build no geometry</source>
        <translation>不建模</translation>
    </message>
    <message>
        <source>one file</source>
        <translation>一个文件</translation>
    </message>
    <message>
        <source>all files of a folder, without their geometry</source>
        <translation>文件夹中的全部文件，不建模</translation>
    </message>
    <message>
        <source>Make a shaded picture of a family</source>
        <translation>生成族的着色图片</translation>
    </message>
    <message>
        <source>A PNG with transparent background, the same on every machine; no graphics card or display is needed.</source>
        <translation>透明背景的 PNG，在每台计算机上都相同；不需要显卡或显示器。</translation>
    </message>
    <message>
        <source>The type that is shown; by default the first</source>
        <translation>要显示的类型；默认为首个类型</translation>
    </message>
    <message>
        <source>Side of the picture, 16 to 4096; by default 512</source>
        <translation>图片的边长，16 到 4096；默认 512</translation>
    </message>
    <message>
        <source>the first type</source>
        <translation>首个类型</translation>
    </message>
    <message>
        <source>another type as a thumbnail</source>
        <translation>另一个类型的缩略图</translation>
    </message>
    <message>
        <source>Write the geometry of a family for other programs: STEP, glTF, STL</source>
        <translation>为其他程序写出族的几何模型：STEP、glTF、STL</translation>
    </message>
    <message>
        <source>Several kinds can be written at once. STEP holds the exact body in millimetres, the others its surface as triangles.</source>
        <translation>可以同时写出多种格式。STEP 是以毫米为单位的精确实体，其他格式是三角面。</translation>
    </message>
    <message>
        <source>Write a STEP file</source>
        <translation>写出 STEP 文件</translation>
    </message>
    <message>
        <source>With --step: its application protocol; by default ap214, which every program reads</source>
        <translation>与 --step 一起使用：其应用协议；默认为各程序都能读取的 ap214</translation>
    </message>
    <message>
        <source>Write a glTF file</source>
        <translation>写出 glTF 文件</translation>
    </message>
    <message>
        <source>Write an STL file</source>
        <translation>写出 STL 文件</translation>
    </message>
    <message>
        <source>The type that is written; by default the first</source>
        <translation>要写出的类型；默认为首个类型</translation>
    </message>
    <message>
        <source>for a CAD program</source>
        <translation>供 CAD 程序使用</translation>
    </message>
    <message>
        <source>for viewers and printers</source>
        <translation>供查看器和打印机使用</translation>
    </message>
    <message>
        <source>Work with family files: look, check, compute, draw, export, make</source>
        <translation>处理族文件：查看、检查、计算、绘图、导出、生成</translation>
    </message>
    <message>
        <source>A family file holds the parameters, types and parametric geometry of components that differ in size alone. None of these commands changes a family file that it reads.</source>
        <translation>族文件包含只在尺寸上不同的构件的参数、类型和参数化几何模型。这些命令都不会改动所读取的族文件。</translation>
    </message>
    <message>
        <source>Show the category tree of the library on this machine</source>
        <translation>显示本机组件库的分类树</translation>
    </message>
    <message>
        <source>Needs no network. The disciplines stand at the left, their categories and end categories below them.</source>
        <translation>无需网络。专业位于最左侧，其下为分类和末级分类。</translation>
    </message>
    <message>
        <source>Show only the category with this code and those beneath it</source>
        <translation>只显示此编码的分类及其下级</translation>
    </message>
    <message>
        <source>the end categories of a discipline, for a script</source>
        <translation>某专业的末级分类，供脚本使用</translation>
    </message>
    <message>
        <source>Search the library on this machine</source>
        <translation>搜索本机组件库</translation>
    </message>
    <message>
        <source>Needs no network. Finds disciplines, categories and components by code, Chinese or English name, pinyin or its initials, family types and values, best first. All words of the text have to occur.</source>
        <translation>无需网络。按编码、中英文名称、拼音或首字母、族类型和参数值查找专业、分类和组件，最匹配者在前。所有词都须出现。</translation>
    </message>
    <message>
        <source>What to search for, in either language</source>
        <translation>要搜索的内容，中英文均可</translation>
    </message>
    <message>
        <source>List this many at most; 20 by default</source>
        <translation>最多列出的数量；默认 20</translation>
    </message>
    <message>
        <source>pumps, by their Chinese name</source>
        <translation>按中文名称查找水泵</translation>
    </message>
    <message>
        <source>the same by its sound; "sb" by its initials</source>
        <translation>按拼音查找；“sb”为首字母</translation>
    </message>
    <message>
        <source>codes, for a script</source>
        <translation>编码，供脚本使用</translation>
    </message>
    <message>
        <source>List the legends of a category, its placeholder drawings</source>
        <translation>列出分类的图例（占位图）</translation>
    </message>
    <message>
        <source>By default from the library on this machine, which needs no network.</source>
        <translation>默认取自本机组件库，无需网络。</translation>
    </message>
    <message>
        <source>By default from the library on this machine, which needs no network and lists the properties of types alone.</source>
        <translation>默认取自本机组件库，无需网络，且只列出类型属性。</translation>
    </message>
    <message>
        <source>the properties of an end category</source>
        <translation>末级分类的属性</translation>
    </message>
    <message>
        <source>Only the legends of this view; by default of all three</source>
        <translation>只列此视图的图例；默认三个视图都列</translation>
    </message>
    <message>
        <source>Take the legends of the cloud</source>
        <translation>取云端的图例</translation>
    </message>
    <message>
        <source>the plan legends of an end category</source>
        <translation>末级分类的平面图例</translation>
    </message>
    <message>
        <source>addresses of the pictures, for a script</source>
        <translation>图片地址，供脚本使用</translation>
    </message>
    <message>
        <source>List how the cloud's categories map onto the component editor's</source>
        <translation>列出云端分类与构件编辑器分类的对应关系</translation>
    </message>
    <message>
        <source>codes and editor ids, for a script</source>
        <translation>编码和编辑器编号，供脚本使用</translation>
    </message>
</context>
<context>
    <name>ErrorDetails</name>
    <message>
        <source>code: %1</source>
        <translation>代码：%1</translation>
    </message>
    <message>
        <source>address: %1</source>
        <translation>地址：%1</translation>
    </message>
    <message>
        <source>HTTP status: %1</source>
        <translation>HTTP 状态：%1</translation>
    </message>
    <message>
        <source>the server's code: %1</source>
        <translation>服务器的代码：%1</translation>
    </message>
    <message>
        <source>original text: %1</source>
        <translation>原文：%1</translation>
    </message>
    <message>
        <source>tries: %1</source>
        <translation>尝试次数：%1</translation>
    </message>
    <message>
        <source>number in the log: %1</source>
        <translation>日志中的编号：%1</translation>
    </message>
</context>
<context>
    <name>HelpText</name>
    <message>
        <source>nuq - the component library in the terminal</source>
        <translation>nuq - 终端里的构件库</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用法</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Options of all commands</source>
        <translation>所有命令的选项</translation>
    </message>
    <message>
        <source>"nuq COMMAND --help" shows the options of a command.</source>
        <translation>“nuq 命令 --help”显示该命令的选项。</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>"nuq %1 COMMAND --help" shows the options of a command.</source>
        <translation>“nuq %1 COMMAND --help”显示一个命令的选项。</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>--tree and --service cannot be used together.</source>
        <translation>--tree 和 --service 不能同时使用。</translation>
    </message>
    <message>
        <source>The catalogue has no categories.</source>
        <translation>目录中没有类别。</translation>
    </message>
    <message>
        <source>The public category service gave no categories, and it does not say why.</source>
        <translation>公共类别服务没有给出类别，也没有说明原因。</translation>
    </message>
    <message>
        <source>Without --service the program names the reason.</source>
        <translation>不带 --service 时程序会说明原因。</translation>
    </message>
    <message>
        <source>There are no components here.</source>
        <translation>这里没有构件。</translation>
    </message>
    <message>
        <source>No component matches "%1" here.</source>
        <translation>这里没有与“%1”匹配的构件。</translation>
    </message>
    <message>
        <source>The last page is page %1.</source>
        <translation>最后一页是第 %1 页。</translation>
    </message>
    <message>
        <source>%1-%2 of %3</source>
        <translation>第 %1-%2 个，共 %3 个</translation>
    </message>
    <message>
        <source>The catalogue changed while it was listed; list again to be sure that nothing is missing.</source>
        <translation>列出期间目录发生了变化；请重新列出，以确保没有遗漏。</translation>
    </message>
    <message>
        <source>--all and --page cannot be used together.</source>
        <translation>--all 和 --page 不能同时使用。</translation>
    </message>
    <message>
        <source>--stream needs --all.</source>
        <translation>--stream 需要 --all。</translation>
    </message>
    <message>
        <source>The folder %1 (%2) does not exist.</source>
        <translation>文件夹 %1（%2）不存在。</translation>
    </message>
    <message>
        <source>Correct --app-dir or NUQ_APP_DIR, or install the program again.</source>
        <translation>请更正 --app-dir 或 NUQ_APP_DIR，或重新安装程序。</translation>
    </message>
    <message>
        <source>%1 (not there, defaults are used)</source>
        <translation>%1（不存在，使用默认值）</translation>
    </message>
    <message>
        <source>Copy what is worth keeping from the file that was set aside.</source>
        <translation>请从被搁置的文件中复制值得保留的内容。</translation>
    </message>
    <message>
        <source>Mend or remove the settings file.</source>
        <translation>请修复或删除设置文件。</translation>
    </message>
    <message>
        <source>Mend that source of the token; no other one is asked.</source>
        <translation>请修复该令牌来源；不会询问其他来源。</translation>
    </message>
    <message>
        <source>No token is set up for this environment.</source>
        <translation>此环境没有设置令牌。</translation>
    </message>
    <message>
        <source>Set NUQ_TOKEN_QA or NUQ_TOKEN_QA_FILE.</source>
        <translation>请设置 NUQ_TOKEN_QA 或 NUQ_TOKEN_QA_FILE。</translation>
    </message>
    <message>
        <source>Set NUQ_TOKEN or NUQ_TOKEN_FILE.</source>
        <translation>请设置 NUQ_TOKEN 或 NUQ_TOKEN_FILE。</translation>
    </message>
    <message>
        <source>Let only yourself read the file (chmod 600).</source>
        <translation>请只允许自己读取该文件（chmod 600）。</translation>
    </message>
    <message>
        <source>Check the rights of the folder and the space on its disk.</source>
        <translation>请检查文件夹的权限和磁盘空间。</translation>
    </message>
    <message>
        <source>refused, because there is no usable token</source>
        <translation>被拒绝，因为没有可用的令牌</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>一切正常。</translation>
    </message>
    <message>
        <source>Faults: %1. Warnings: %2.</source>
        <translation>故障：%1。警告：%2。</translation>
    </message>
    <message>
        <source>The category has no properties of its own; end categories have them.</source>
        <translation>该类别没有自己的属性；末级类别才有。</translation>
    </message>
    <message>
        <source>The component has no family types.</source>
        <translation>该构件没有族类型。</translation>
    </message>
    <message>
        <source>%1 of %2 components ...</source>
        <translation>%1 / %2 个构件……</translation>
    </message>
    <message>
        <source>Next: "nuq --help" for all commands, "--json" for scripts, "nuq doctor" if something fails.</source>
        <translation>接下来：“nuq --help”查看所有命令，“--json”用于脚本，出错时用“nuq doctor”。</translation>
    </message>
    <message>
        <source>The catalogue has %1 categories; these are the first level</source>
        <translation>目录有 %1 个类别；这是第一级</translation>
    </message>
    <message>
        <source>%1: the first of %2 components</source>
        <translation>%1：共 %2 个构件中的前几个</translation>
    </message>
    <message>
        <source>One component with its family types and pictures</source>
        <translation>一个构件及其族类型和图片</translation>
    </message>
    <message>
        <source>Some of its values as %1</source>
        <translation>它作为 %1 的部分参数值</translation>
    </message>
    <message>
        <source>A search: "%1" is found in %2 components</source>
        <translation>搜索：“%1”匹配 %2 个构件</translation>
    </message>
    <message>
        <source>No category has a component that matches "%1".</source>
        <translation>没有类别含有与“%1”匹配的构件。</translation>
    </message>
    <message>
        <source>What was checked is in order. Not checked: %1.</source>
        <translation>已检查的各项正常。未检查：%1。</translation>
    </message>
    <message>
        <source>This environment has no address of the interface; "nuq doctor" says what to mend.</source>
        <translation>此环境没有接口地址；“nuq doctor”会说明如何修复。</translation>
    </message>
    <message>
        <source>option --app-dir</source>
        <translation>选项 --app-dir</translation>
    </message>
    <message>
        <source>environment variable NUQ_APP_DIR</source>
        <translation>环境变量 NUQ_APP_DIR</translation>
    </message>
    <message>
        <source>installed share folder</source>
        <translation>安装的共享文件夹</translation>
    </message>
    <message>
        <source>option --environment</source>
        <translation>选项 --environment</translation>
    </message>
    <message>
        <source>environment variable NUQ_ENVIRONMENT</source>
        <translation>环境变量 NUQ_ENVIRONMENT</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>environment variable %1</source>
        <translation>环境变量 %1</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>文件 %1</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>被拒绝：%1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 (%2 files)</source>
        <translation>%1（%2 个文件）</translation>
    </message>
    <message>
        <source>ACTION has to be "clear", but it is "%1".</source>
        <translation>ACTION 必须是“clear”，而给出的是“%1”。</translation>
    </message>
    <message>
        <source>Waiting for the picture ...</source>
        <translation>正在等待图片……</translation>
    </message>
    <message>
        <source>"%1" is no address of the web.</source>
        <translation>“%1”不是网络地址。</translation>
    </message>
    <message>
        <source>--project goes with the id of a component only.</source>
        <translation>--project 只能与构件编号一起使用。</translation>
    </message>
    <message>
        <source>The component "%1" has no thumbnail.</source>
        <translation>构件“%1”没有缩略图。</translation>
    </message>
    <message>
        <source>--json and --output - cannot be used together.</source>
        <translation>--json 和 --output - 不能同时使用。</translation>
    </message>
    <message>
        <source>The suffix of "%1" names none of the picture formats %2.</source>
        <translation>“%1”的扩展名不是以下图片格式之一：%2。</translation>
    </message>
    <message>
        <source>The file "%1" could not be written: %2.</source>
        <translation>无法写入文件“%1”：%2。</translation>
    </message>
    <message>
        <source>There are no family files (*.nuqfamily) in the folder %1.</source>
        <translation>文件夹 %1 中没有族文件（*.nuqfamily）。</translation>
    </message>
    <message>
        <source>whole, with %1 entries</source>
        <translation>完整，共 %1 个条目</translation>
    </message>
    <message>
        <source>%1 driven parameters</source>
        <translation>%1 个驱动得出的参数</translation>
    </message>
    <message>
        <source>and %1 more types</source>
        <translation>以及另外 %1 个类型</translation>
    </message>
    <message>
        <source>%1 types with possible values</source>
        <translation>%1 个类型的值均有效</translation>
    </message>
    <message>
        <source>can be followed</source>
        <translation>可以执行</translation>
    </message>
    <message>
        <source>%1 different bodies, all sound</source>
        <translation>%1 个不同的实体，均有效</translation>
    </message>
    <message>
        <source>The file does not say what came out when it was built.</source>
        <translation>文件没有记录建模结果。</translation>
    </message>
    <message>
        <source>The volume was %1 mm3 when the file was written and is %2 mm3 now.</source>
        <translation>写入文件时体积为 %1 mm3，现在为 %2 mm3。</translation>
    </message>
    <message>
        <source>the volume is the recorded one</source>
        <translation>体积与记录一致</translation>
    </message>
    <message>
        <source>The picture %1 is missing or not of its size.</source>
        <translation>图片 %1 缺失或尺寸不符。</translation>
    </message>
    <message>
        <source>The drawing %1 is missing or damaged.</source>
        <translation>图纸 %1 缺失或已损坏。</translation>
    </message>
    <message>
        <source>pictures in four sizes and three drawings</source>
        <translation>四种尺寸的图片和三张图纸</translation>
    </message>
    <message>
        <source>The family has no type "%1".</source>
        <translation>该族没有类型“%1”。</translation>
    </message>
    <message>
        <source>Its types: %1</source>
        <translation>它的类型：%1</translation>
    </message>
    <message>
        <source>The family has no type "%1", and there is no file of that name.</source>
        <translation>该族没有类型“%1”，也没有这个名称的文件。</translation>
    </message>
    <message>
        <source>"nuq family show" lists the types.</source>
        <translation>“nuq family show”会列出各类型。</translation>
    </message>
    <message>
        <source>Building the geometry ... %1 %</source>
        <translation>正在建模…… %1 %</translation>
    </message>
    <message>
        <source>Building the geometry of %1 ... %2 %</source>
        <translation>正在为 %1 建模…… %2 %</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2.</source>
        <translation>无法写入文件 %1：%2。</translation>
    </message>
    <message>
        <source>Specifications that yield a geometry: %1 of %2.</source>
        <translation>可以建模的规格：%1 / %2。</translation>
    </message>
    <message>
        <source>The command "family sheet" needs --output with a file that ends in .png.</source>
        <translation>命令“family sheet”需要 --output，且文件名以 .png 结尾。</translation>
    </message>
    <message>
        <source>--files and --content cannot be used together.</source>
        <translation>--files 和 --content 不能同时使用。</translation>
    </message>
    <message>
        <source>There are no files %1 in the folder %2.</source>
        <translation>文件夹 %2 中没有文件 %1。</translation>
    </message>
    <message>
        <source>The command "family draw" needs --output with a file that ends in .svg or .png.</source>
        <translation>命令“family draw”需要 --output，且文件名以 .svg 或 .png 结尾。</translation>
    </message>
    <message>
        <source>The command "family new" needs --output with a file that ends in .nuqfamily.</source>
        <translation>命令“family new”需要 --output，且文件名以 .nuqfamily 结尾。</translation>
    </message>
    <message>
        <source>The description %1 cannot be read: %2.</source>
        <translation>无法读取描述 %1：%2。</translation>
    </message>
    <message>
        <source>The file %1 is there already.</source>
        <translation>文件 %1 已存在。</translation>
    </message>
    <message>
        <source>Choose another name, or replace it with --force.</source>
        <translation>请换一个名称，或用 --force 替换它。</translation>
    </message>
    <message>
        <source>The file %1 holds %2 specifications; only one can be computed.</source>
        <translation>文件 %1 含有 %2 个规格；一次只能计算一个。</translation>
    </message>
    <message>
        <source>The command "family render" needs --output with a file that ends in .png.</source>
        <translation>命令“family render”需要 --output，且文件名以 .png 结尾。</translation>
    </message>
    <message>
        <source>The command "family export" needs --step, --gltf or --stl.</source>
        <translation>命令“family export”需要 --step、--gltf 或 --stl。</translation>
    </message>
    <message>
        <source>The environment variable NUQ_LIBRARY or the setting "library" names the folder of the library.</source>
        <translation>环境变量 NUQ_LIBRARY 或设置项“library”指定组件库所在文件夹。</translation>
    </message>
    <message>
        <source>The library on this machine has no category "%1".</source>
        <translation>本机组件库中没有分类“%1”。</translation>
    </message>
    <message>
        <source>"nuq tree" lists the categories.</source>
        <translation>“nuq tree”可列出所有分类。</translation>
    </message>
    <message>
        <source>Nothing in the library on this machine matches "%1".</source>
        <translation>本机组件库中没有与“%1”匹配的内容。</translation>
    </message>
    <message>
        <source>%1 of %2 are listed; --limit lists more.</source>
        <translation>已列出 %2 项中的 %1 项；用 --limit 可列出更多。</translation>
    </message>
    <message>
        <source>The category has no legends; end categories have them.</source>
        <translation>该分类没有图例；末级分类才有。</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>"nuq --help" shows what is possible.</source>
        <translation>“nuq --help”显示可用的命令。</translation>
    </message>
    <message>
        <source>A command is missing.</source>
        <translation>缺少命令。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 is a complaint, %2 says where help is; both are whole sentences</extracomment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The server cannot answer now; try %1 in %2 s ...</source>
        <translation>服务器暂时无法应答；%2 秒后第 %1 次尝试……</translation>
    </message>
    <message>
        <source>Loading ... %1</source>
        <translation>正在加载…… %1</translation>
    </message>
    <message>
        <source>Loading ... %1 (%2 %)</source>
        <translation>正在加载…… %1（%2 %）</translation>
    </message>
    <message>
        <source>Waiting for the server ...</source>
        <translation>正在等待服务器……</translation>
    </message>
    <message>
        <source>The output could not be written: %1.</source>
        <translation>无法写入输出：%1。</translation>
    </message>
</context>
<context>
    <name>Titles</name>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>编码</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>COUNT</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Family types</source>
        <translation>族类型</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>CATEGORY</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>VERSION</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>检查项</translation>
    </message>
    <message>
        <source>FOUND</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>Known environments</source>
        <translation>已知环境</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Static files</source>
        <translation>静态文件</translation>
    </message>
    <message>
        <source>Structure</source>
        <translation>结构服务</translation>
    </message>
    <message>
        <source>Sign-in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Application folder</source>
        <translation>应用程序文件夹</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>设置文件</translation>
    </message>
    <message>
        <source>Thumbnail folder</source>
        <translation>缩略图文件夹</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>PROJECT</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>EXISTS</source>
        <translation>存在</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>UNIT</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>必填</translation>
    </message>
    <message>
        <source>PARAMETER</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation>值</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>From the cache</source>
        <translation>来自缓存</translation>
    </message>
    <message>
        <source>Cache file</source>
        <translation>缓存文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>WANTED</source>
        <translation>要求值</translation>
    </message>
    <message>
        <source>FIRST TYPE</source>
        <translation>首个类型</translation>
    </message>
    <message>
        <source>NOTE</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>computed</source>
        <translation>计算得出</translation>
    </message>
    <message>
        <source>yields a geometry</source>
        <translation>可以建模</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>SPECIFICATION</source>
        <translation>规格</translation>
    </message>
    <message>
        <source>not built yet</source>
        <translation>尚未建模</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>几何模型</translation>
    </message>
    <message>
        <source>Connectors</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>POSSIBLE</source>
        <translation>允许值</translation>
    </message>
    <message>
        <source>FORMULA</source>
        <translation>公式</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>BEFORE</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>AFTER</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>formulas</source>
        <translation>公式</translation>
    </message>
    <message>
        <source>types</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>recipe</source>
        <translation>建模步骤</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>几何模型</translation>
    </message>
    <message>
        <source>record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>KIND</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>FOUND BY</source>
        <translation>匹配依据</translation>
    </message>
    <message>
        <source>VIEW</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>EDITOR ID</source>
        <translation>编辑器编号</translation>
    </message>
    <message>
        <source>MAJOR</source>
        <translation>专业</translation>
    </message>
    <message>
        <source>NAMES</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>code</source>
        <translation>编码</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>pinyin</source>
        <translation>拼音</translation>
    </message>
    <message>
        <source>value</source>
        <translation>参数值</translation>
    </message>
    <message>
        <source>discipline</source>
        <translation>专业</translation>
    </message>
    <message>
        <source>category</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>component</source>
        <translation>组件</translation>
    </message>
</context>
</TS>
