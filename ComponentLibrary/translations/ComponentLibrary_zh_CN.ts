<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Diagnosis</name>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>这是文件夹，不是文件。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>The file is far too large.</source>
        <translation>文件过大。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file is no valid JSON (at byte %1: %2).</source>
        <translation>文件不是有效的 JSON（第 %1 字节：%2）。</translation>
    </message>
    <message>
        <source>The file holds no JSON object.</source>
        <translation>文件中没有 JSON 对象。</translation>
    </message>
    <message>
        <source>The file is no valid XML (line %1: %2).</source>
        <translation>文件不是有效的 XML（第 %1 行：%2）。</translation>
    </message>
    <message>
        <source>Restore the file from the installation.</source>
        <translation>请从安装包恢复该文件。</translation>
    </message>
    <message>
        <source>not checked because of the fault above</source>
        <translation>因上面的故障未检查</translation>
    </message>
    <message>
        <source>The list of environment files has no entry "%1".</source>
        <translation>环境文件列表中没有“%1”项。</translation>
    </message>
    <message>
        <source>The environment "%1" is not in the map.</source>
        <translation>映射中没有环境“%1”。</translation>
    </message>
    <message>
        <source>Known environments: %1. Names are compared with letter case.</source>
        <translation>已知环境：%1。名称区分大小写。</translation>
    </message>
    <message>
        <source>Write an http or https address into the file of the addresses.</source>
        <translation>请在地址文件中写入 http 或 https 地址。</translation>
    </message>
    <message>
        <source>No address is configured.</source>
        <translation>没有配置地址。</translation>
    </message>
    <message>
        <source>"%1" is not a web address.</source>
        <translation>“%1”不是网址。</translation>
    </message>
    <message>
        <source>application folder</source>
        <translation>应用程序文件夹</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>environment files: list</source>
        <translation>环境文件：列表</translation>
    </message>
    <message>
        <source>environment files: design cloud</source>
        <translation>环境文件：设计云</translation>
    </message>
    <message>
        <source>environment files: map</source>
        <translation>环境文件：映射</translation>
    </message>
    <message>
        <source>environment files: addresses</source>
        <translation>环境文件：地址</translation>
    </message>
    <message>
        <source>environment</source>
        <translation>环境</translation>
    </message>
    <message>
        <source>address of the interface</source>
        <translation>接口地址</translation>
    </message>
    <message>
        <source>address of static files</source>
        <translation>静态文件地址</translation>
    </message>
    <message>
        <source>token</source>
        <translation>令牌</translation>
    </message>
    <message>
        <source>host name</source>
        <translation>主机名</translation>
    </message>
    <message>
        <source>connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>encryption</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>sign-in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>answer of the service</source>
        <translation>服务的应答</translation>
    </message>
    <message>
        <source>clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>log folder</source>
        <translation>日志文件夹</translation>
    </message>
    <message>
        <source>cache folder</source>
        <translation>缓存文件夹</translation>
    </message>
    <message>
        <source>%1 cannot be written to: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Check the rights of the folder and the space on its disk.</source>
        <translation>请检查文件夹的权限和磁盘空间。</translation>
    </message>
    <message>
        <source>not checked offline</source>
        <translation>离线时不检查</translation>
    </message>
    <message>
        <source>a proxy looks host names up</source>
        <translation>由代理解析主机名</translation>
    </message>
    <message>
        <source>certificate accepted</source>
        <translation>证书有效</translation>
    </message>
    <message>
        <source>not needed on this computer</source>
        <translation>在本机上不需要</translation>
    </message>
    <message>
        <source>The connection is not encrypted; others can read the token.</source>
        <translation>连接未加密；他人可能读取令牌。</translation>
    </message>
    <message>
        <source>Use an https address if the server has one.</source>
        <translation>如果服务器有 https 地址，请使用它。</translation>
    </message>
    <message>
        <source>not checked because of the fault below</source>
        <translation>因下面的故障未检查</translation>
    </message>
    <message>
        <source>token accepted</source>
        <translation>令牌有效</translation>
    </message>
    <message>
        <source>%1 projects</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>the server does not tell its time</source>
        <translation>服务器未告知其时间</translation>
    </message>
    <message>
        <source>%1 s apart from the server's</source>
        <translation>与服务器相差 %1 秒</translation>
    </message>
    <message>
        <source>Set this computer's clock; sign-in and certificates depend on it.</source>
        <translation>请校正本机时钟；登录和证书都依赖它。</translation>
    </message>
    <message>
        <source>no component with a thumbnail to try</source>
        <translation>没有可供尝试的带缩略图的构件</translation>
    </message>
    <message>
        <source>%1 min apart from the server's</source>
        <translation>与服务器相差 %1 分钟</translation>
    </message>
    <message>
        <source>%1 h apart from the server's</source>
        <translation>与服务器相差 %1 小时</translation>
    </message>
    <message>
        <source>%1 days apart from the server's</source>
        <translation>与服务器相差 %1 天</translation>
    </message>
</context>
<context>
    <name>ErrorTexts</name>
    <message>
        <source>It was cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>The program works offline and opens no connection.</source>
        <translation>程序处于离线模式，不打开任何连接。</translation>
    </message>
    <message>
        <source>Switch offline mode off to ask the server.</source>
        <translation>要询问服务器，请关闭离线模式。</translation>
    </message>
    <message>
        <source>No server address is configured for the current environment.</source>
        <translation>当前环境没有配置服务器地址。</translation>
    </message>
    <message>
        <source>Check the environment name and the environment files in the application folder; "nuq doctor" checks them one by one.</source>
        <translation>请检查环境名称和应用程序文件夹中的环境文件；“nuq doctor”会逐一检查。</translation>
    </message>
    <message>
        <source>The configured server address is not an http or https address.</source>
        <translation>配置的服务器地址不是 http 或 https 地址。</translation>
    </message>
    <message>
        <source>Correct the address in the environment files.</source>
        <translation>请更正环境文件中的地址。</translation>
    </message>
    <message>
        <source>{host} refuses connections.</source>
        <translation>{host} 拒绝连接。</translation>
    </message>
    <message>
        <source>Check that the server runs and that address and port are right.</source>
        <translation>请确认服务器正在运行，且地址和端口正确。</translation>
    </message>
    <message>
        <source>The host name {host} cannot be found.</source>
        <translation>找不到主机名 {host}。</translation>
    </message>
    <message>
        <source>Check the spelling of the address and the network's name service.</source>
        <translation>请检查地址拼写和网络的域名服务。</translation>
    </message>
    <message>
        <source>{host} did not answer in time.</source>
        <translation>{host} 未在规定时间内应答。</translation>
    </message>
    <message>
        <source>Try again, or allow more time.</source>
        <translation>请重试，或允许更长的时间。</translation>
    </message>
    <message>
        <source>{host} closed the connection before the answer was complete.</source>
        <translation>{host} 在应答完成之前关闭了连接。</translation>
    </message>
    <message>
        <source>Try again; if it stays so, a proxy or firewall may be cutting the connection.</source>
        <translation>请重试；如果仍然如此，可能是代理或防火墙切断了连接。</translation>
    </message>
    <message>
        <source>The network to {host} is not available.</source>
        <translation>到 {host} 的网络不可用。</translation>
    </message>
    <message>
        <source>Check the network connection of this computer.</source>
        <translation>请检查本机的网络连接。</translation>
    </message>
    <message>
        <source>The proxy server on the way to {host} cannot be used.</source>
        <translation>通往 {host} 的代理服务器无法使用。</translation>
    </message>
    <message>
        <source>Check the proxy settings of this computer (http_proxy, https_proxy, no_proxy).</source>
        <translation>请检查本机的代理设置（http_proxy、https_proxy、no_proxy）。</translation>
    </message>
    <message>
        <source>The proxy server on the way to {host} asks for a user name and a password.</source>
        <translation>通往 {host} 的代理服务器要求用户名和密码。</translation>
    </message>
    <message>
        <source>Put user name and password into the proxy settings.</source>
        <translation>请在代理设置中填写用户名和密码。</translation>
    </message>
    <message>
        <source>The connection to {host} failed.</source>
        <translation>与 {host} 的连接失败。</translation>
    </message>
    <message>
        <source>Try again; the details name the cause.</source>
        <translation>请重试；详细信息中有原因。</translation>
    </message>
    <message>
        <source>This installation cannot make secure connections: its TLS library is missing.</source>
        <translation>此安装无法建立安全连接：缺少 TLS 库。</translation>
    </message>
    <message>
        <source>Install OpenSSL (libssl) and start again.</source>
        <translation>请安装 OpenSSL（libssl）后重新启动。</translation>
    </message>
    <message>
        <source>{host} shows a certificate that it has signed itself, so it cannot be verified.</source>
        <translation>{host} 出示的是自签名证书，无法验证。</translation>
    </message>
    <message>
        <source>If the server is yours, add its certificate to the trusted ones (SSL_CERT_FILE).</source>
        <translation>如果这是您自己的服务器，请把它的证书加入受信任的证书（SSL_CERT_FILE）。</translation>
    </message>
    <message>
        <source>The certificate of {host} has expired.</source>
        <translation>{host} 的证书已过期。</translation>
    </message>
    <message>
        <source>Check this computer's clock; if it is right, the server needs a new certificate.</source>
        <translation>请检查本机时钟；如果时钟正确，服务器需要新的证书。</translation>
    </message>
    <message>
        <source>The certificate of {host} is not valid yet.</source>
        <translation>{host} 的证书尚未生效。</translation>
    </message>
    <message>
        <source>Most likely this computer's clock is slow: set it right.</source>
        <translation>很可能是本机时钟慢了：请校正时钟。</translation>
    </message>
    <message>
        <source>The certificate shown by {host} belongs to another host.</source>
        <translation>{host} 出示的证书属于另一台主机。</translation>
    </message>
    <message>
        <source>Check the address; use the name for which the certificate was made.</source>
        <translation>请检查地址；使用证书所签发的名称。</translation>
    </message>
    <message>
        <source>The certificate of {host} comes from an authority that this computer does not know.</source>
        <translation>{host} 的证书来自本机不认识的颁发机构。</translation>
    </message>
    <message>
        <source>Add the authority's certificate to the trusted ones (SSL_CERT_FILE).</source>
        <translation>请把该颁发机构的证书加入受信任的证书（SSL_CERT_FILE）。</translation>
    </message>
    <message>
        <source>No secure connection to {host} could be agreed on.</source>
        <translation>无法与 {host} 商定安全连接。</translation>
    </message>
    <message>
        <source>Check that the address begins with the right one of http and https.</source>
        <translation>请检查地址开头的 http 或 https 是否正确。</translation>
    </message>
    <message>
        <source>You are not signed in, or your sign-in has expired.</source>
        <translation>您尚未登录，或登录已过期。</translation>
    </message>
    <message>
        <source>Provide a valid token (NUQ_TOKEN or NUQ_TOKEN_FILE; NUQ_TOKEN_QA for the environment "qa").</source>
        <translation>请提供有效的令牌（NUQ_TOKEN 或 NUQ_TOKEN_FILE；“qa”环境用 NUQ_TOKEN_QA）。</translation>
    </message>
    <message>
        <source>You are signed in but not allowed to do this.</source>
        <translation>您已登录，但无权进行此操作。</translation>
    </message>
    <message>
        <source>Ask the administrator of the project or of the service for permission.</source>
        <translation>请向项目或服务的管理员申请权限。</translation>
    </message>
    <message>
        <source>The server has nothing under this name.</source>
        <translation>服务器上没有这个名称的内容。</translation>
    </message>
    <message>
        <source>Check the id or the code.</source>
        <translation>请检查编号或编码。</translation>
    </message>
    <message>
        <source>{host} accepts no more requests until {time}.</source>
        <translation>{host} 在 {time} 之前不再接受请求。</translation>
    </message>
    <message>
        <source>Wait until then and try again.</source>
        <translation>请等到那时再试。</translation>
    </message>
    <message>
        <source>{host} is not available at the moment.</source>
        <translation>{host} 暂时不可用。</translation>
    </message>
    <message>
        <source>Try again in a few minutes.</source>
        <translation>请过几分钟再试。</translation>
    </message>
    <message>
        <source>{host} reports a fault of its own (HTTP {status}).</source>
        <translation>{host} 报告其内部故障（HTTP {status}）。</translation>
    </message>
    <message>
        <source>Try again later; if it stays so, tell the operator of the server.</source>
        <translation>请稍后重试；如果仍然如此，请告知服务器的运营者。</translation>
    </message>
    <message>
        <source>{host} rejected the request: {message}</source>
        <translation>{host} 拒绝了请求：{message}</translation>
    </message>
    <message>
        <source>Check the values that were given.</source>
        <translation>请检查所给的值。</translation>
    </message>
    <message>
        <source>{host} sent an answer that cannot be read; it is damaged or cut short.</source>
        <translation>{host} 发来的应答无法读取，已损坏或被截断。</translation>
    </message>
    <message>
        <source>Try again; if it stays so, tell the operator of the server.</source>
        <translation>请重试；如果仍然如此，请告知服务器的运营者。</translation>
    </message>
    <message>
        <source>{host} sent a web page instead of data.</source>
        <translation>{host} 发来的是网页而不是数据。</translation>
    </message>
    <message>
        <source>Open the address in a browser: a proxy or a network may ask for a sign-in first, or the address is wrong.</source>
        <translation>请在浏览器中打开该地址：可能代理或网络要求先登录，或者地址有误。</translation>
    </message>
    <message>
        <source>{host} sent an answer without content.</source>
        <translation>{host} 发来的应答没有内容。</translation>
    </message>
    <message>
        <source>Try again; if it stays so, check the server address.</source>
        <translation>请重试；如果仍然如此，请检查服务器地址。</translation>
    </message>
    <message>
        <source>{host} sent only a part of the answer.</source>
        <translation>{host} 只发来了应答的一部分。</translation>
    </message>
    <message>
        <source>Try again; a proxy on the way may be at fault.</source>
        <translation>请重试；可能是途中的代理有问题。</translation>
    </message>
    <message>
        <source>{host} answered with the unexpected status HTTP {status}.</source>
        <translation>{host} 以意外的状态 HTTP {status} 应答。</translation>
    </message>
    <message>
        <source>Check the server address.</source>
        <translation>请检查服务器地址。</translation>
    </message>
    <message>
        <source>{host} passes the request on without end.</source>
        <translation>{host} 不停地转发请求。</translation>
    </message>
    <message>
        <source>Check the server address; a proxy or sign-in page may be at fault.</source>
        <translation>请检查服务器地址；可能是代理或登录页面有问题。</translation>
    </message>
    <message>
        <source>{host} passes the request on to an address that must not be followed.</source>
        <translation>{host} 把请求转到了不允许跟随的地址。</translation>
    </message>
    <message>
        <source>Check the server address; from https only https may be followed.</source>
        <translation>请检查服务器地址；从 https 只能转到 https。</translation>
    </message>
    <message>
        <source>{host} sent data of another form than this program understands.</source>
        <translation>{host} 发来的数据格式与本程序所理解的不同。</translation>
    </message>
    <message>
        <source>Check the server address and whether this program is up to date.</source>
        <translation>请检查服务器地址以及本程序是否为最新版本。</translation>
    </message>
    <message>
        <source>{host} announced more entries than it sent.</source>
        <translation>{host} 发来的条目少于它所声明的数量。</translation>
    </message>
    <message>
        <source>List again; the catalogue may have changed meanwhile.</source>
        <translation>请重新列出；目录可能在此期间发生了变化。</translation>
    </message>
    <message>
        <source>The answer of {host} is larger than this program accepts.</source>
        <translation>{host} 的应答超过了本程序接受的大小。</translation>
    </message>
    <message>
        <source>Ask for less at once, for example with a smaller page.</source>
        <translation>请一次少取一些，例如使用较小的页。</translation>
    </message>
    <message>
        <source>The program could not process the answer.</source>
        <translation>程序无法处理该应答。</translation>
    </message>
    <message>
        <source>This is a fault of the program: please report it with the details.</source>
        <translation>这是程序的故障：请连同详细信息一起报告。</translation>
    </message>
    <message>
        <source>The categories could not be loaded.</source>
        <translation>无法加载类别。</translation>
    </message>
    <message>
        <source>The components could not be loaded.</source>
        <translation>无法加载构件列表。</translation>
    </message>
    <message>
        <source>The component could not be loaded.</source>
        <translation>无法加载该构件。</translation>
    </message>
    <message>
        <source>Whether the component is in the project could not be found out.</source>
        <translation>无法查明项目中是否有该构件。</translation>
    </message>
    <message>
        <source>The specifications could not be loaded.</source>
        <translation>无法加载各规格。</translation>
    </message>
    <message>
        <source>The specification could not be loaded.</source>
        <translation>无法加载该规格。</translation>
    </message>
    <message>
        <source>The properties of the category could not be loaded.</source>
        <translation>无法加载该类别的属性。</translation>
    </message>
    <message>
        <source>The projects could not be loaded.</source>
        <translation>无法加载项目。</translation>
    </message>
    <message>
        <source>The legends could not be loaded.</source>
        <translation>无法加载图例。</translation>
    </message>
    <message>
        <source>The category mappings could not be loaded.</source>
        <translation>无法加载类别映射。</translation>
    </message>
    <message>
        <source>The service could not be checked.</source>
        <translation>无法检查服务。</translation>
    </message>
    <message>
        <source>The picture could not be loaded.</source>
        <translation>无法加载图片。</translation>
    </message>
    <message>
        <source>The server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>some later time</source>
        <translation>稍后某时</translation>
    </message>
    <message>
        <source>it gave no reason.</source>
        <translation>没有给出原因。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>what failed, then why</comment>
        <extracomment>joins "what failed" and "why"; Chinese needs no blank between two sentences</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>The server says: %1</source>
        <translation>服务器的说明：%1</translation>
    </message>
</context>
<context>
    <name>Families</name>
    <message>
        <source>The specification is not JSON (byte %1: %2).</source>
        <translation>规格不是 JSON（第 %1 字节：%2）。</translation>
    </message>
    <message>
        <source>A specification needs the member "values" with values by name, or "parameters" with ids.</source>
        <translation>规格需要按名称给出值的成员“values”，或带标识的“parameters”。</translation>
    </message>
    <message>
        <source>There is no specification in the list.</source>
        <translation>列表中没有规格。</translation>
    </message>
    <message>
        <source>The specification %1 cannot be read: %2.</source>
        <translation>无法读取规格 %1：%2。</translation>
    </message>
    <message>
        <source>The specification %1 is larger than 16 MB.</source>
        <translation>规格 %1 大于 16 MB。</translation>
    </message>
    <message>
        <source>The family file could not be copied to check the copy: %1.</source>
        <translation>无法复制族文件以检查其副本：%1。</translation>
    </message>
</context>
</TS>
