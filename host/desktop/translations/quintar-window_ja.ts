<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActionDialog</name>
    <message>
        <source>Settings of the action</source>
        <translation>アクションの設定</translation>
    </message>
</context>
<context>
    <name>ChangeDraft</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>ChangeWarnings</name>
    <message numerus="yes">
        <source>%Ln document(s) have no bookmarks: the panel will be empty.</source>
        <translation>
            <numerusform>%Ln 個の文書にしおりがありません。パネルは空になります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) have no title to show.</source>
        <translation>
            <numerusform>%Ln 個の文書に表示できるタイトルがありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The shortest document has %Ln page(s); it cannot open there.</source>
        <translation>
            <numerusform>最も短い文書は %Ln ページです。そのページでは開けません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are signed and stay as they are, unless you say otherwise.</source>
        <translation>
            <numerusform>%Ln 個の文書は署名済みです。指定しないかぎり元のままです。</numerusform>
        </translation>
    </message>
    <message>
        <source>Full screen: many viewers ask first, and browsers ignore it.</source>
        <translation>フルスクリーン: 多くのビューアーは先に確認し、ブラウザーは無視します。</translation>
    </message>
    <message>
        <source>Browsers ignore what is said about windows and bars.</source>
        <translation>ブラウザーはウィンドウとバーに関する指定を無視します。</translation>
    </message>
    <message>
        <source>Without the menu bar, readers need the keyboard.</source>
        <translation>メニューバーがないと、読む人はキーボードが必要です。</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>The name of the file. The sign before it says what a run would do or did.</source>
        <translation>ファイルの名前。前の印は、実行すると何が起こるか、または何が起こったかを示します。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Where the document lies.</source>
        <translation>文書の場所。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>The document&apos;s own title, from its properties.</source>
        <translation>プロパティにある文書自身のタイトル。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ数</translation>
    </message>
    <message>
        <source>How many pages the document has.</source>
        <translation>文書のページ数。</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>しおり</translation>
    </message>
    <message>
        <source>How many bookmarks the document has.</source>
        <translation>文書のしおりの数。</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens.</source>
        <translation>文書を開いたときにページの横に表示されるもの。</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>How the pages are set out.</source>
        <translation>ページの並べ方。</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>The page that is shown first.</source>
        <translation>最初に表示されるページ。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>表示倍率</translation>
    </message>
    <message>
        <source>How large the first page is shown.</source>
        <translation>最初のページの表示の大きさ。</translation>
    </message>
    <message>
        <source>Title Bar</source>
        <translation>タイトルバー</translation>
    </message>
    <message>
        <source>Whether the title bar of the viewer says the title or the name of the file.</source>
        <translation>ビューアーのタイトルバーに表示されるのがタイトルかファイル名か。</translation>
    </message>
    <message>
        <source>Window Options</source>
        <translation>ウィンドウオプション</translation>
    </message>
    <message>
        <source>What else the document asks for: hidden bars, the size and place of the window, printing.</source>
        <translation>文書がほかに求めるもの: 隠すバー、ウィンドウの大きさと位置、印刷。</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>署名</translation>
    </message>
    <message>
        <source>Viewers report any change of a signed document.</source>
        <translation>ビューアーは署名済み文書の変更をすべて報告します。</translation>
    </message>
    <message>
        <source>Certified</source>
        <translation>証明</translation>
    </message>
    <message>
        <source>A certified document says what may be done to it.</source>
        <translation>証明済み文書は、何をしてよいかを定めています。</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>An encrypted document may need a password to be read or changed.</source>
        <translation>暗号化された文書は、読み取りや変更にパスワードが必要な場合があります。</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>What a run would do to the document, or did, and why not.</source>
        <translation>実行すると文書がどうなるか、またはどうなったか、できない場合はその理由。</translation>
    </message>
</context>
<context>
    <name>Destination</name>
    <message>
        <source>Choose the folder for the results.</source>
        <translation>結果のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Say what is added to the names.</source>
        <translation>名前に付け加えるものを指定してください。</translation>
    </message>
    <message>
        <source>What is added to the names cannot hold a slash.</source>
        <translation>名前に付け加えるものにスラッシュは使えません。</translation>
    </message>
    <message>
        <source>in place</source>
        <translation>元の文書に</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>%1 に</translation>
    </message>
    <message>
        <source>beside them, as name-%1.pdf</source>
        <translation>元の文書の隣に 名前-%1.pdf として</translation>
    </message>
    <message>
        <source>The folder has to begin with a slash or with ~/.</source>
        <translation>フォルダーはスラッシュまたは ~/ で始めてください。</translation>
    </message>
    <message>
        <source>Leave out the hyphen and .pdf: they are added anyway.</source>
        <translation>ハイフンと .pdf は自動的に付くので、入力しないでください。</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>PDF documents (*.pdf *.PDF)</source>
        <translation>PDF 文書 (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
</context>
<context>
    <name>DocumentFilter</name>
    <message>
        <source>All documents</source>
        <translation>すべての文書</translation>
    </message>
    <message>
        <source>Do not show their title</source>
        <translation>タイトルを表示しない</translation>
    </message>
    <message>
        <source>Have no title</source>
        <translation>タイトルがない</translation>
    </message>
    <message>
        <source>Have bookmarks but do not show them</source>
        <translation>しおりがあるのに表示しない</translation>
    </message>
    <message>
        <source>Have no bookmarks</source>
        <translation>しおりがない</translation>
    </message>
    <message>
        <source>Open at a page of their own</source>
        <translation>特定のページで開く</translation>
    </message>
    <message>
        <source>Will change</source>
        <translation>変更される</translation>
    </message>
    <message>
        <source>Failed or cannot be changed</source>
        <translation>失敗した、または変更できない</translation>
    </message>
    <message>
        <source>Signed</source>
        <translation>署名済み</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>暗号化されている</translation>
    </message>
    <message>
        <source>Have a title but do not show it</source>
        <translation>タイトルがあるのに表示しない</translation>
    </message>
    <message>
        <source>Failed in the run</source>
        <translation>実行で失敗</translation>
    </message>
    <message>
        <source>Were changed or written</source>
        <translation>変更または書き出し済み</translation>
    </message>
</context>
<context>
    <name>EventReader</name>
    <message>
        <source>the program and the window are of different versions</source>
        <translation>プログラムとウィンドウのバージョンが異なります</translation>
    </message>
    <message>
        <source>the program said something that is not understood</source>
        <translation>プログラムの出力を理解できません</translation>
    </message>
</context>
<context>
    <name>PasswordTrial</name>
    <message numerus="yes">
        <source>The password opens none of the %Ln document(s) that want one.</source>
        <translation>
            <numerusform>パスワードを必要とする %Ln 件の文書は、このパスワードでは開けません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The password opens %Ln document(s).</source>
        <translation>
            <numerusform>このパスワードで %Ln 件の文書が開けます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) want another one.</source>
        <translation>
            <numerusform>%Ln 件の文書には別のパスワードが必要です。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetFolder</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>The preset cannot be kept: %1</source>
        <translation>プリセットを保存できません: %1</translation>
    </message>
    <message>
        <source>The preset cannot be removed: %1</source>
        <translation>プリセットを削除できません: %1</translation>
    </message>
</context>
<context>
    <name>ReasonTexts</name>
    <message>
        <source>Signed: viewers would report the change.</source>
        <translation>署名済み: ビューアーが変更を報告します。</translation>
    </message>
    <message>
        <source>Certified: any change breaks the certification.</source>
        <translation>証明済み: 変更すると証明が無効になります。</translation>
    </message>
    <message>
        <source>A password is needed to open it.</source>
        <translation>開くにはパスワードが必要です。</translation>
    </message>
    <message>
        <source>Its owner does not allow changes without the owner&apos;s password.</source>
        <translation>所有者のパスワードなしでは変更が許可されていません。</translation>
    </message>
    <message>
        <source>It is encrypted in a way that cannot be read here.</source>
        <translation>ここでは読み取れない方式で暗号化されています。</translation>
    </message>
    <message>
        <source>Not a PDF document.</source>
        <translation>PDF 文書ではありません。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>Too damaged to be read.</source>
        <translation>損傷がひどく、読み取れません。</translation>
    </message>
    <message>
        <source>Damaged, so it is in doubt what it holds; nothing is changed.</source>
        <translation>損傷していて内容が不確かなため、何も変更しません。</translation>
    </message>
    <message>
        <source>Damaged, so nothing can be added to it.</source>
        <translation>損傷しているため、何も追加できません。</translation>
    </message>
    <message>
        <source>Too complex to be read.</source>
        <translation>複雑すぎて読み取れません。</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>ファイルはもうありません。</translation>
    </message>
    <message>
        <source>You may not read or change it here.</source>
        <translation>ここでは読み取りまたは変更が許可されていません。</translation>
    </message>
    <message>
        <source>Not a file that can be read.</source>
        <translation>読み取れるファイルではありません。</translation>
    </message>
    <message>
        <source>The disk could not be read.</source>
        <translation>ディスクを読み取れませんでした。</translation>
    </message>
    <message>
        <source>The result could not be written.</source>
        <translation>結果を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile.</source>
        <translation>その間にほかのプログラムが変更しました。</translation>
    </message>
    <message>
        <source>It has been changed since the run, so it stays.</source>
        <translation>実行後に変更されているため、そのままにします。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>It lies where nothing may be written.</source>
        <translation>書き込みのできない場所にあります。</translation>
    </message>
    <message>
        <source>It took too long and was given up.</source>
        <translation>時間がかかりすぎたため、打ち切りました。</translation>
    </message>
    <message>
        <source>It needs too much memory and was given up.</source>
        <translation>必要なメモリが多すぎるため、打ち切りました。</translation>
    </message>
    <message>
        <source>Reading it crashed the reader; it is as it was.</source>
        <translation>読み取り中に読み取りプログラムが異常終了しました。文書は元のままです。</translation>
    </message>
    <message>
        <source>&amp;Give Password…</source>
        <translation>パスワードを入力(&amp;L)…</translation>
    </message>
    <message>
        <source>Append A&amp;ll the Same</source>
        <translation>それでも追記する(&amp;L)</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Show in Fo&amp;lder</source>
        <translation>フォルダーで表示(&amp;L)</translation>
    </message>
    <message>
        <source>signed</source>
        <translation>署名付き</translation>
    </message>
    <message>
        <source>certified</source>
        <translation>認証済み</translation>
    </message>
    <message>
        <source>password needed</source>
        <translation>パスワードが必要</translation>
    </message>
    <message>
        <source>encrypted</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>out of reach</source>
        <translation>アクセス不可</translation>
    </message>
    <message>
        <source>unsafe to read</source>
        <translation>読み取りに危険</translation>
    </message>
    <message>
        <source>Its properties are damaged, so its title cannot be set.</source>
        <translation>プロパティが破損しているため、タイトルを設定できません。</translation>
    </message>
    <message>
        <source>It opens with an action that cannot be taken over.</source>
        <translation>引き継げないアクションで開きます。</translation>
    </message>
    <message>
        <source>It is larger than a limit allows.</source>
        <translation>サイズの上限を超えています。</translation>
    </message>
    <message>
        <source>Another program keeps it locked.</source>
        <translation>ほかのプログラムがロックしています。</translation>
    </message>
    <message>
        <source>It tried to do what no document needs, and was shut out.</source>
        <translation>文書に不要な動作を試みたため、遮断されました。</translation>
    </message>
    <message>
        <source>The computer is too busy: no worker could be started.</source>
        <translation>コンピューターが混雑しており、処理を開始できませんでした。</translation>
    </message>
    <message>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>It cannot be written anew without loss.</source>
        <translation>失われるものなしに新しく書き出すことができません。</translation>
    </message>
    <message>
        <source>It has no page of this number.</source>
        <translation>この番号のページはありません。</translation>
    </message>
    <message>
        <source>The change was refused while it was made; it is as it was.</source>
        <translation>変更は拒否されました。文書は元のままです。</translation>
    </message>
    <message>
        <source>It was not changed in place, so there is nothing to undo.</source>
        <translation>その場では変更されていないため、元に戻すものはありません。</translation>
    </message>
    <message>
        <source>The report does not tell what stood there before, so it stays.</source>
        <translation>以前の内容がレポートにないため、そのままにします。</translation>
    </message>
    <message>
        <source>The report says what no run can have done, so it stays.</source>
        <translation>レポートの内容は実行では起こりえないため、そのままにします。</translation>
    </message>
    <message>
        <source>The report tells of no change of it, so it stays.</source>
        <translation>この文書の変更がレポートにないため、そのままにします。</translation>
    </message>
    <message>
        <source>A mistake of this program. Please report it.</source>
        <translation>このプログラムの誤りです。報告してください。</translation>
    </message>
    <message>
        <source>changed since</source>
        <translation>その後変更</translation>
    </message>
    <message>
        <source>disk full</source>
        <translation>ディスクの空き不足</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>will change</source>
        <translation>変更されます</translation>
    </message>
    <message>
        <source>opens so already</source>
        <translation>すでにそのように開きます</translation>
    </message>
    <message>
        <source>cannot be changed</source>
        <translation>変更できません</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>as it was</source>
        <translation>元のまま</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>not done</source>
        <translation>未処理</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>元に戻しました</translation>
    </message>
    <message>
        <source>left alone</source>
        <translation>そのまま残しました</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, became %2</source>
        <translation>%1、%2 になりました</translation>
    </message>
    <message>
        <source>%1, will be %2</source>
        <translation>%1、%2 になります</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>、</translation>
    </message>
    <message>
        <source>result written</source>
        <translation>結果を書き出しました</translation>
    </message>
    <message>
        <source>copied as it was</source>
        <translation>そのままコピーしました</translation>
    </message>
    <message>
        <source>%1, in the result %2</source>
        <translation>%1、結果では%2</translation>
    </message>
</context>
<context>
    <name>RunOrder</name>
    <message>
        <source>Write to</source>
        <translation>書き込み先</translation>
    </message>
    <message>
        <source>The documents themselves lie in this folder. Choose another one, or write to the documents themselves.</source>
        <translation>このフォルダーには文書そのものがあります。別のフォルダーを選ぶか、文書そのものに書き込んでください。</translation>
    </message>
</context>
<context>
    <name>SceneDrawing</name>
    <message>
        <source>no bookmarks</source>
        <translation>しおりなし</translation>
    </message>
</context>
<context>
    <name>SelectionSummary</name>
    <message>
        <source>others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>現在 %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>different: %1</source>
        <translation>異なる: %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>A run is being undone. Stop undoing it?</source>
        <translation>実行を取り消しています。取り消しを中止しますか?</translation>
    </message>
    <message>
        <source>A run is under way. Stop it?</source>
        <translation>実行中です。中止しますか?</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as the run left them, and the run can be undone later.</source>
        <translation>処理中の文書は最後まで処理し、ほかの文書は実行後のままです。実行は後で取り消せます。</translation>
    </message>
    <message>
        <source>Documents that are being worked on are finished; the others stay as they are.</source>
        <translation>処理中の文書は最後まで処理し、ほかの文書は元のままです。</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>What stands beside the page when the document opens: nothing, its bookmarks, small pictures of its pages, its layers or its attachments. Full screen shows the page alone, as in a presentation. Bookmarks are widely followed, full screen only after the viewer has asked.</source>
        <translation>文書を開いたときにページの横に表示されるもの: なし、しおり、ページの縮小画像、レイヤー、添付ファイル。フルスクリーンはプレゼンテーションのようにページだけを表示します。しおりは広く対応されていますが、フルスクリーンはビューアーが確認した後に限られます。</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>How the pages are set out. In columns they follow each other while scrolling; single pages and pairs are turned. Simple viewers know fewer layouts or keep the one used last.</source>
        <translation>ページの並べ方。連続表示ではスクロールに合わせてページが続き、単一ページと見開きではページをめくります。簡単なビューアーは対応するレイアウトが少ないか、最後に使ったものを保ちます。</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>The page that is shown first. It counts the sheets from the beginning, whatever numbers are printed on them. Widely followed, but many viewers return to where the reader stopped last.</source>
        <translation>最初に表示されるページ。印刷されている番号にかかわらず、先頭から数えます。広く対応されていますが、多くのビューアーは最後に読んだ位置に戻ります。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>表示倍率</translation>
    </message>
    <message>
        <source>How large the first page is shown. Fitting the page or its width and percentages are widely followed; fitting the height or what is visible is rarer.</source>
        <translation>最初のページの表示の大きさ。全体表示、幅に合わせる、パーセント指定は広く対応されています。高さや描画領域に合わせる指定への対応は少なめです。</translation>
    </message>
    <message>
        <source>Tool bars</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Whether the viewer hides its tool bars. Viewers in web browsers ignore this.</source>
        <translation>ビューアーがツールバーを隠すかどうか。Web ブラウザーのビューアーは無視します。</translation>
    </message>
    <message>
        <source>Menu bar</source>
        <translation>メニューバー</translation>
    </message>
    <message>
        <source>Whether the viewer hides its menu bar. Readers then need the keyboard. Viewers in web browsers ignore this.</source>
        <translation>ビューアーがメニューバーを隠すかどうか。隠すと、読む人はキーボードが必要です。Web ブラウザーのビューアーは無視します。</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>コントロール</translation>
    </message>
    <message>
        <source>Whether the viewer hides scroll bars and other controls. Viewers in web browsers ignore this.</source>
        <translation>ビューアーがスクロールバーなどのコントロールを隠すかどうか。Web ブラウザーのビューアーは無視します。</translation>
    </message>
    <message>
        <source>Window size</source>
        <translation>ウィンドウの大きさ</translation>
    </message>
    <message>
        <source>Whether the window takes the size of the first page. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>ウィンドウを最初のページの大きさに合わせるかどうか。Web ブラウザーのビューアーとタブのあるビューアーは無視します。</translation>
    </message>
    <message>
        <source>Window place</source>
        <translation>ウィンドウの位置</translation>
    </message>
    <message>
        <source>Whether the window stands in the middle of the screen. Viewers in web browsers and those with tabs ignore this.</source>
        <translation>ウィンドウを画面の中央に置くかどうか。Web ブラウザーのビューアーとタブのあるビューアーは無視します。</translation>
    </message>
    <message>
        <source>Title bar</source>
        <translation>タイトルバー</translation>
    </message>
    <message>
        <source>What the title bar of the viewer says: the name of the file, or the document&apos;s own title. Accessibility rules ask for the title.</source>
        <translation>ビューアーのタイトルバーに表示されるもの: ファイルの名前、または文書自身のタイトル。アクセシビリティの規則はタイトルを求めています。</translation>
    </message>
    <message>
        <source>After full screen</source>
        <translation>フルスクリーン後</translation>
    </message>
    <message>
        <source>The panel that shows once full screen is left.</source>
        <translation>フルスクリーンを終えたときに表示されるパネル。</translation>
    </message>
    <message>
        <source>Reading direction</source>
        <translation>綴じ方向</translation>
    </message>
    <message>
        <source>Which page of a pair stands on the left. It does not change the text.</source>
        <translation>見開きのどちらのページが左に来るか。本文は変わりません。</translation>
    </message>
    <message>
        <source>Print scaling</source>
        <translation>印刷時の倍率</translation>
    </message>
    <message>
        <source>How the print dialog scales pages at first. Forms and labels want none.</source>
        <translation>印刷ダイアログが最初にページをどう拡大縮小するか。帳票やラベルは「拡大縮小なし」が適しています。</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>How the print dialog uses the two sides of the paper at first.</source>
        <translation>印刷ダイアログが最初に用紙の両面をどう使うか。</translation>
    </message>
    <message>
        <source>Paper tray</source>
        <translation>給紙トレイ</translation>
    </message>
    <message>
        <source>Whether the size of the page selects the paper tray.</source>
        <translation>ページの大きさで給紙トレイを選ぶかどうか。</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>The number of copies that the print dialog proposes.</source>
        <translation>印刷ダイアログが示す部数。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>The document&apos;s title, as its properties and the title bar show it.</source>
        <translation>プロパティとタイトルバーに表示される文書のタイトル。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The document&apos;s language, for example en-GB. Screen readers choose the voice by it.</source>
        <translation>文書の言語。例: ja-JP。スクリーンリーダーはこれによって音声を選びます。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>しおり</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>添付ファイル</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>Single page</source>
        <translation>単一ページ</translation>
    </message>
    <message>
        <source>One column</source>
        <translation>連続ページ</translation>
    </message>
    <message>
        <source>Two columns, odd left</source>
        <translation>連続見開き、奇数ページが左</translation>
    </message>
    <message>
        <source>Two columns, odd right</source>
        <translation>連続見開き、奇数ページが右</translation>
    </message>
    <message>
        <source>Two pages, odd left</source>
        <translation>見開き、奇数ページが左</translation>
    </message>
    <message>
        <source>Two pages, odd right</source>
        <translation>見開き、奇数ページが右</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示する</translation>
    </message>
    <message>
        <source>As the first page</source>
        <translation>最初のページに合わせる</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>元の大きさ</translation>
    </message>
    <message>
        <source>Middle of the screen</source>
        <translation>画面の中央</translation>
    </message>
    <message>
        <source>Where it was</source>
        <translation>元の位置</translation>
    </message>
    <message>
        <source>Document title</source>
        <translation>文書のタイトル</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>左から右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>No scaling</source>
        <translation>拡大縮小なし</translation>
    </message>
    <message>
        <source>As the viewer likes</source>
        <translation>ビューアーに任せる</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>片面</translation>
    </message>
    <message>
        <source>Two sides, long edge</source>
        <translation>両面、長辺とじ</translation>
    </message>
    <message>
        <source>Two sides, short edge</source>
        <translation>両面、短辺とじ</translation>
    </message>
    <message>
        <source>By the page size</source>
        <translation>ページの大きさに合わせる</translation>
    </message>
    <message>
        <source>As the printer likes</source>
        <translation>プリンターに任せる</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>高さに合わせる</translation>
    </message>
    <message>
        <source>Fit visible</source>
        <translation>描画領域に合わせる</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>A magnification, %1 is the number.</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>最後</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>ファイル名から</translation>
    </message>
    <message>
        <source>Runs a script</source>
        <translation>スクリプトを実行</translation>
    </message>
    <message>
        <source>Opens a web page</source>
        <translation>Web ページを開く</translation>
    </message>
    <message>
        <source>Other action (%1)</source>
        <extracomment>%1 is the kind of an action as the document names it, such as Launch.</extracomment>
        <translation>その他のアクション (%1)</translation>
    </message>
</context>
<context>
    <name>host::desktop::ActionTable</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <translation>文書(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Add &amp;Files…</source>
        <translation>ファイルを追加(&amp;F)…</translation>
    </message>
    <message>
        <source>Adds documents to the list</source>
        <translation>文書を一覧に追加します</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>フォルダーを追加(&amp;O)…</translation>
    </message>
    <message>
        <source>Adds the documents of a folder and of those below it</source>
        <translation>フォルダーとその下位フォルダーの文書を追加します</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>レポートを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>各文書がどうなったかをファイルに残します</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Closes the window; list and change are there again the next time</source>
        <translation>ウィンドウを閉じます。一覧と変更は次回も残っています</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Paste Documents</source>
        <translation>文書を貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Adds the files, folders and paths that were copied elsewhere</source>
        <translation>ほかでコピーしたファイル、フォルダー、パスを追加します</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>一覧から除外(&amp;M)</translation>
    </message>
    <message>
        <source>Takes the selected documents out of the list; the files stay</source>
        <translation>選択した文書を一覧から外します。ファイルは残ります</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Selects all documents that are shown</source>
        <translation>表示中のすべての文書を選択します</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
    <message>
        <source>Shows the documents that have certain words</source>
        <translation>特定の語を含む文書を表示します</translation>
    </message>
    <message>
        <source>&amp;Open in Viewer</source>
        <translation>ビューアーで開く(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the current document</source>
        <translation>現在の文書を開きます</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>フォルダーで表示(&amp;F)</translation>
    </message>
    <message>
        <source>Shows the current document in the file manager</source>
        <translation>現在の文書をファイルマネージャーで表示します</translation>
    </message>
    <message>
        <source>&amp;Copy Paths</source>
        <translation>パスをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the paths of the selected documents</source>
        <translation>選択した文書のパスをコピーします</translation>
    </message>
    <message>
        <source>Give &amp;Password…</source>
        <translation>パスワードを入力(&amp;P)…</translation>
    </message>
    <message>
        <source>Tries a password on all documents that want one</source>
        <translation>パスワードを必要とするすべての文書で試します</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>再読み込み(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Like This Document</source>
        <translation>この文書と同じにする(&amp;L)</translation>
    </message>
    <message>
        <source>Makes documents open as the current one does</source>
        <translation>現在の文書と同じように開くようにします</translation>
    </message>
    <message>
        <source>C&amp;onfigure the Action…</source>
        <translation>アクションを設定(&amp;O)…</translation>
    </message>
    <message>
        <source>Makes the settings in the action&apos;s own window</source>
        <translation>アクション自身のウィンドウで設定します</translation>
    </message>
    <message>
        <source>&amp;Save as Preset…</source>
        <translation>プリセットとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Keeps the change under a name</source>
        <translation>変更に名前を付けて残します</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>すべて維持(&amp;K)</translation>
    </message>
    <message>
        <source>Sets nothing</source>
        <translation>何も設定しません</translation>
    </message>
    <message>
        <source>&amp;Copy as Command</source>
        <translation>コマンドとしてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies the command line that does the same</source>
        <translation>同じことを行うコマンドラインをコピーします</translation>
    </message>
    <message>
        <source>&amp;Start…</source>
        <translation>開始(&amp;S)…</translation>
    </message>
    <message>
        <source>Says what will be done to how many documents, and asks</source>
        <translation>いくつの文書に何を行うかを示し、確認します</translation>
    </message>
    <message>
        <source>&amp;Pause or Go On</source>
        <translation>一時停止または再開(&amp;P)</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>再開するまで新しい文書に取りかかりません</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>中止(&amp;T)</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>処理中の文書を終え、新しい文書には取りかかりません</translation>
    </message>
    <message>
        <source>Try Failed &amp;Again</source>
        <translation>失敗分を再試行(&amp;A)</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>失敗した文書と未処理の文書をもう一度処理します</translation>
    </message>
    <message>
        <source>&amp;Undo Last Run…</source>
        <translation>最後の実行を元に戻す(&amp;U)…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>各文書を実行前の状態に戻します</translation>
    </message>
    <message>
        <source>Earlier &amp;Runs…</source>
        <translation>過去の実行(&amp;R)…</translation>
    </message>
    <message>
        <source>Tells of the runs that can be undone</source>
        <translation>元に戻せる実行を示します</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>Shows how the current document opens, before and after</source>
        <translation>現在の文書の開き方を変更前と変更後で示します</translation>
    </message>
    <message>
        <source>&amp;Next Part of the Window</source>
        <translation>ウィンドウの次の部分(&amp;N)</translation>
    </message>
    <message>
        <source>Goes from the list to the change and on</source>
        <translation>一覧から変更へ、さらにその先へ移ります</translation>
    </message>
    <message>
        <source>P&amp;revious Part of the Window</source>
        <translation>ウィンドウの前の部分(&amp;R)</translation>
    </message>
    <message>
        <source>Goes back</source>
        <translation>前に戻ります</translation>
    </message>
    <message>
        <source>&amp;Settings and Viewers</source>
        <translation>設定とビューアー(&amp;S)</translation>
    </message>
    <message>
        <source>Explains each setting and which viewers follow it</source>
        <translation>各設定と、それに従うビューアーを説明します</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>Lists all keys</source>
        <translation>すべてのキーを一覧にします</translation>
    </message>
    <message>
        <source>&amp;What&apos;s This?</source>
        <translation>これは何?(&amp;W)</translation>
    </message>
    <message>
        <source>Explains what is clicked next</source>
        <translation>次にクリックしたものを説明します</translation>
    </message>
    <message>
        <source>&amp;About Quintar</source>
        <translation>Quintar について(&amp;A)</translation>
    </message>
    <message>
        <source>Names the version</source>
        <translation>バージョンを示します</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>Chooses what the list tells of each document</source>
        <translation>一覧に表示する項目を選びます</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>Chooses in which order the documents stand</source>
        <translation>文書の並び順を選びます</translation>
    </message>
    <message>
        <source>Move Column &amp;Left</source>
        <translation>列を左へ移動(&amp;L)</translation>
    </message>
    <message>
        <source>Moves the column that the keyboard is in</source>
        <translation>キーボードのある列を移動します</translation>
    </message>
    <message>
        <source>Move Column Ri&amp;ght</source>
        <translation>列を右へ移動(&amp;G)</translation>
    </message>
    <message>
        <source>Takes back what was last added, removed or set</source>
        <translation>最後に追加、除外、設定したことを元に戻します</translation>
    </message>
    <message>
        <source>Does once more what was taken back</source>
        <translation>元に戻したことをもう一度行います</translation>
    </message>
    <message>
        <source>Sho&amp;w Results</source>
        <translation>結果を表示(&amp;N)</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>実行の書き込み先フォルダーを開きます</translation>
    </message>
    <message>
        <source>Reads the documents that are shown once more</source>
        <translation>表示中の文書をもう一度読み込みます</translation>
    </message>
</context>
<context>
    <name>host::desktop::ChangePanel</name>
    <message>
        <source>Show Them</source>
        <translation>表示する</translation>
    </message>
    <message>
        <source>Show them: %1</source>
        <translation>表示する: %1</translation>
    </message>
    <message>
        <source>&amp;Keep All</source>
        <translation>すべて維持(&amp;K)</translation>
    </message>
    <message>
        <source>Cha&amp;nge for</source>
        <translation>対象(&amp;B)</translation>
    </message>
    <message>
        <source>Change for</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>A change is for all documents that are shown, or for those that are selected. Documents that the search or the filter hides stay as they are.</source>
        <translation>変更は、表示中のすべての文書、または選択した文書に適用されます。検索やフィルターで隠れている文書は元のままです。</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>Changes under a name: views that you keep, and the action lists and favourites of the action “Initial View”.</source>
        <translation>名前の付いた変更: 保存したビューと、アクション「Initial View」のアクションリストとお気に入り。</translation>
    </message>
    <message>
        <source>Title and language</source>
        <translation>タイトルと言語</translation>
    </message>
    <message>
        <source>Viewer&apos;s window</source>
        <translation>ビューアーのウィンドウ</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>C&amp;onfigure…</source>
        <translation>設定(&amp;O)…</translation>
    </message>
    <message numerus="yes">
        <source>all %Ln document(s)</source>
        <translation>
            <numerusform>すべての %Ln 個の文書</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %Ln shown</source>
        <translation>
            <numerusform>表示中の %Ln 個すべて</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the %Ln selected</source>
        <translation>
            <numerusform>選択した %Ln 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ChildRun</name>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 を起動できませんでした: %2</translation>
    </message>
    <message>
        <source>the program said more than can be understood</source>
        <translation>プログラムの出力が多すぎて理解できません</translation>
    </message>
    <message>
        <source>%1 crashed</source>
        <translation>%1 が異常終了しました</translation>
    </message>
    <message>
        <source>%1 ended too early, with exit status %2</source>
        <translation>%1 が途中で終了しました (終了ステータス %2)</translation>
    </message>
</context>
<context>
    <name>host::desktop::ColumnMenus</name>
    <message>
        <source>&amp;Ascending</source>
        <translation>昇順(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>降順(&amp;D)</translation>
    </message>
</context>
<context>
    <name>host::desktop::Commands</name>
    <message>
        <source>Add Files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>The clipboard holds no files, folders or paths.</source>
        <translation>クリップボードにファイル、フォルダー、パスがありません。</translation>
    </message>
    <message>
        <source>Folder for the Results</source>
        <translation>結果のフォルダー</translation>
    </message>
    <message>
        <source>Undo this run?</source>
        <translation>この実行を元に戻しますか?</translation>
    </message>
    <message numerus="yes">
        <source>Give %Ln document(s) back as they were?</source>
        <translation>
            <numerusform>%Ln 個の文書を元の状態に戻しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Documents that have been changed since by something else are left alone.</source>
        <translation>その後ほかで変更された文書は、そのまま残します。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>レポートを保存</translation>
    </message>
    <message>
        <source>report.tsv</source>
        <translation>report.tsv</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>The report is in %1.</source>
        <translation>レポートは %1 にあります。</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>レポートを %1 に書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>About Quintar</source>
        <translation>Quintar について</translation>
    </message>
    <message>
        <source>Quintar %1</source>
        <translation>Quintar %1</translation>
    </message>
    <message>
        <source>Says how PDF documents open. It adds to a document and never takes away: every run in place can be undone.</source>
        <translation>PDF 文書の開き方を定めます。文書に追加するだけで、取り除くことはありません。元の文書への実行はすべて元に戻せます。</translation>
    </message>
    <message>
        <source>No viewer took %1.</source>
        <translation>%1 を開けるビューアーがありません。</translation>
    </message>
    <message>
        <source>No file manager took %1.</source>
        <translation>%1 を開けるファイルマネージャーがありません。</translation>
    </message>
    <message>
        <source>The command is in the clipboard.</source>
        <translation>コマンドはクリップボードにあります。</translation>
    </message>
    <message>
        <source>The change makes documents open as %1 does.</source>
        <translation>変更により、文書は %1 と同じように開きます。</translation>
    </message>
    <message>
        <source>The password is tried on all documents that want one. It is kept until this window is closed.</source>
        <translation>パスワードは、必要とするすべての文書で試します。このウィンドウを閉じるまで保持されます。</translation>
    </message>
    <message>
        <source>The command is in the clipboard. It waits for the password to be typed.</source>
        <translation>コマンドはクリップボードにあります。実行するとパスワードの入力を待ちます。</translation>
    </message>
    <message>
        <source>No document would be changed.</source>
        <translation>変更される文書はありません。</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again to try once more.</source>
        <translation>何が変わるかは不明です。もう一度試すには文書を読み直してください。</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
</context>
<context>
    <name>host::desktop::DestinationRow</name>
    <message>
        <source>The documents themselves</source>
        <translation>元の文書</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Beside them, under another name</source>
        <translation>元の文書の隣に別の名前で</translation>
    </message>
    <message>
        <source>Write to</source>
        <translation>書き込み先</translation>
    </message>
    <message>
        <source>A run changes the documents themselves, which can be undone, or leaves them as they are and writes its results into a folder or beside them.</source>
        <translation>実行は、元の文書を変更する(元に戻せます)か、元の文書はそのままにして、結果をフォルダーまたは文書の隣に書き込みます。</translation>
    </message>
    <message>
        <source>Folder for the results</source>
        <translation>結果のフォルダー</translation>
    </message>
    <message>
        <source>Choose the folder for the results</source>
        <translation>結果のフォルダーを選ぶ</translation>
    </message>
    <message>
        <source>Added to the names</source>
        <translation>名前に付け加えるもの</translation>
    </message>
    <message>
        <source>The run can be undone.</source>
        <translation>実行は元に戻せます。</translation>
    </message>
    <message>
        <source>The documents stay as they are.</source>
        <translation>文書は元のままです。</translation>
    </message>
    <message>
        <source>manual.pdf becomes manual-%1.pdf.</source>
        <translation>manual.pdf は manual-%1.pdf になります。</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>&amp;Write to</source>
        <translation>書き込み先(&amp;W)</translation>
    </message>
</context>
<context>
    <name>host::desktop::DetailLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2. %3</source>
        <translation>%1: %2。%3</translation>
    </message>
    <message>
        <source>About the current document</source>
        <translation>現在の文書について</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>文書を選ぶと、その開き方が表示されます。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>host::desktop::DocumentView</name>
    <message>
        <source>Documents</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>host::desktop::EditHistory</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>%Ln 個の文書の除外をやり直す(&amp;R)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Removing %Ln Document(s)</source>
        <translation>
            <numerusform>%Ln 個の文書の除外を元に戻す(&amp;U)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Redo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>%Ln 個の文書の追加をやり直す(&amp;R)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo Adding %Ln Document(s)</source>
        <translation>
            <numerusform>%Ln 個の文書の追加を元に戻す(&amp;U)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Redo Changing the Settings</source>
        <translation>設定の変更をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo Changing the Settings</source>
        <translation>設定の変更を元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo Setting “%1”</source>
        <translation>「%1」の設定をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo Setting “%1”</source>
        <translation>「%1」の設定を元に戻す(&amp;U)</translation>
    </message>
</context>
<context>
    <name>host::desktop::EmptyPage</name>
    <message>
        <source>Say how PDF documents open</source>
        <translation>PDF 文書の開き方を決めましょう</translation>
    </message>
    <message>
        <source>With their bookmarks, with their title, at page 1.
Drop documents or folders here. Nothing is changed before you start it.</source>
        <translation>しおり付きで、タイトル付きで、1 ページから。
文書またはフォルダーをここにドロップしてください。開始するまで何も変更されません。</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>フォルダーを追加(&amp;O)…</translation>
    </message>
    <message>
        <source>A document that opens with its bookmarks and its title</source>
        <translation>しおりとタイトルを表示して開く文書</translation>
    </message>
</context>
<context>
    <name>host::desktop::FilterBar</name>
    <message>
        <source>&amp;Show:</source>
        <translation>表示(&amp;J):</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search name, folder, title</source>
        <translation>名前、フォルダー、タイトルを検索</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s)</source>
        <translation>
            <numerusform>%Ln 個の文書</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%2 個中 %1 個を表示</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Shows all documents again (Esc)</source>
        <translation>すべての文書を再び表示します (Esc)</translation>
    </message>
</context>
<context>
    <name>host::desktop::HelpWindow</name>
    <message>
        <source>Help - Quintar</source>
        <translation>ヘルプ - Quintar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>host::desktop::HistoryDialog</name>
    <message>
        <source>Earlier Runs</source>
        <translation>過去の実行</translation>
    </message>
    <message>
        <source>Undoing gives each document back as it was before the run. Documents that something else has changed since are left alone.</source>
        <translation>元に戻すと、各文書は実行前の状態に戻ります。その後ほかで変更された文書は、そのまま残します。</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>この実行を元に戻す(&amp;U)…</translation>
    </message>
    <message>
        <source>Earlier runs</source>
        <translation>過去の実行</translation>
    </message>
</context>
<context>
    <name>host::desktop::Logout</name>
    <message>
        <source>&amp;Stop and Log Out</source>
        <translation>中止してログアウト(&amp;S)</translation>
    </message>
</context>
<context>
    <name>host::desktop::MainWindow</name>
    <message>
        <source>Quintar</source>
        <translation>Quintar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) - Quintar</source>
        <translation>
            <numerusform>%Ln 個の文書 - Quintar</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 % - Quintar</source>
        <translation>%1 % - Quintar</translation>
    </message>
    <message>
        <source>&amp;Stop and Close</source>
        <translation>中止して閉じる(&amp;S)</translation>
    </message>
    <message>
        <source>What was dropped are no files or folders.</source>
        <translation>ドロップされたものはファイルでもフォルダーでもありません。</translation>
    </message>
</context>
<context>
    <name>host::desktop::PresetMenu</name>
    <message>
        <source>Views</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Action Lists</source>
        <translation>アクションリスト</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Nothing is kept yet</source>
        <translation>まだ何も保存されていません</translation>
    </message>
    <message>
        <source>&amp;Remove Preset</source>
        <translation>プリセットを削除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove the preset “%1”?</source>
        <translation>プリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>The change is kept as “%1”.</source>
        <translation>変更を「%1」として保存しました。</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>プリセット「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>There is one of this name already.</source>
        <translation>この名前のプリセットはすでにあります。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換え(&amp;R)</translation>
    </message>
</context>
<context>
    <name>host::desktop::PreviewPane</name>
    <message>
        <source>full screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>bookmarks panel</source>
        <translation>しおりパネル</translation>
    </message>
    <message>
        <source>pages panel</source>
        <translation>ページパネル</translation>
    </message>
    <message>
        <source>layers panel</source>
        <translation>レイヤーパネル</translation>
    </message>
    <message>
        <source>attachments panel</source>
        <translation>添付ファイルパネル</translation>
    </message>
    <message>
        <source>no panel</source>
        <translation>パネルなし</translation>
    </message>
    <message>
        <source>title bar “%1”, %2, page %3 of %4</source>
        <translation>タイトルバー「%1」、%2、%4 ページ中 %3 ページ目</translation>
    </message>
    <message>
        <source>Many viewers ask before full screen; browsers ignore it.</source>
        <translation>多くのビューアーはフルスクリーンの前に確認し、ブラウザーは無視します。</translation>
    </message>
    <message>
        <source>Full-featured viewers do this; browsers ignore bars and windows.</source>
        <translation>多機能なビューアーは従い、ブラウザーはバーとウィンドウの指定を無視します。</translation>
    </message>
    <message>
        <source>Viewers that have this panel show it.</source>
        <translation>このパネルのあるビューアーは表示します。</translation>
    </message>
    <message>
        <source>Full-featured viewers and Firefox follow the layout; others keep their own.</source>
        <translation>多機能なビューアーと Firefox はレイアウトに従い、ほかは自身のものを保ちます。</translation>
    </message>
    <message>
        <source>Most desktop viewers do this; browsers follow page and zoom.</source>
        <translation>デスクトップのほとんどのビューアーが従い、ブラウザーはページと表示倍率に従います。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>A drawing of the first moment of the current document, as it opens now and as it will. Each viewer decides for itself what of this it does.</source>
        <translation>現在の文書の最初の表示を、現在の開き方と変更後の開き方で描いたもの。このうちどれに従うかは、各ビューアーが決めます。</translation>
    </message>
    <message>
        <source>Opens with %1.</source>
        <translation>%1 で開きます。</translation>
    </message>
    <message>
        <source>Before: %1. After: %2. %3</source>
        <translation>変更前: %1。変更後: %2。%3</translation>
    </message>
    <message>
        <source>Select a document to see how it opens.</source>
        <translation>文書を選ぶと、その開き方が表示されます。</translation>
    </message>
    <message>
        <source>Opens like this</source>
        <translation>このように開きます</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
</context>
<context>
    <name>host::desktop::Reading</name>
    <message>
        <source>it cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>not read: reading was stopped</source>
        <translation>未読: 読み込みが中止されました</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunBar</name>
    <message>
        <source>Show Wh&amp;y</source>
        <translation>理由を表示(&amp;Y)</translation>
    </message>
    <message>
        <source>Shows the documents that failed or cannot be changed</source>
        <translation>失敗した文書と変更できない文書を表示します</translation>
    </message>
    <message>
        <source>&amp;Undo This Run…</source>
        <translation>この実行を元に戻す(&amp;U)…</translation>
    </message>
    <message>
        <source>Gives each document back as it was before the run</source>
        <translation>各文書を実行前の状態に戻します</translation>
    </message>
    <message>
        <source>Tr&amp;y Failed Again</source>
        <translation>失敗分を再試行(&amp;G)</translation>
    </message>
    <message>
        <source>Runs once more over what failed or was not done</source>
        <translation>失敗した文書と未処理の文書をもう一度処理します</translation>
    </message>
    <message>
        <source>Save Repor&amp;t…</source>
        <translation>レポートを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Keeps what became of each document in a file</source>
        <translation>各文書がどうなったかをファイルに残します</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Begins no further document until it goes on</source>
        <translation>再開するまで新しい文書に取りかかりません</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>中止(&amp;T)</translation>
    </message>
    <message>
        <source>Finishes the documents that are being worked on, and begins no more</source>
        <translation>処理中の文書を終え、新しい文書には取りかかりません</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln Fa&amp;iled</source>
        <translation>
            <numerusform>失敗した %Ln 個を表示(&amp;Y)</numerusform>
        </translation>
    </message>
    <message>
        <source>Go &amp;On</source>
        <translation>再開(&amp;P)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>一覧は空です。</translation>
    </message>
    <message numerus="yes">
        <source>Reading… %Ln document(s) so far</source>
        <translation>
            <numerusform>読み込み中… 現在 %Ln 個の文書</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change… %1</source>
        <translation>変更内容を確認中… %1</translation>
    </message>
    <message>
        <source>Changing… %1</source>
        <translation>変更中… %1</translation>
    </message>
    <message>
        <source>Paused at %1</source>
        <translation>%1 で一時停止中</translation>
    </message>
    <message>
        <source>Stopping… documents that are being worked on are finished</source>
        <translation>中止中… 処理中の文書を終えています</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>元に戻しています…</translation>
    </message>
    <message>
        <source>Say on the right what is to change.</source>
        <translation>何を変更するかを右側で指定してください。</translation>
    </message>
    <message>
        <source>Nothing would change</source>
        <translation>変更されるものはありません</translation>
    </message>
    <message numerus="yes">
        <source>%Ln will change</source>
        <translation>
            <numerusform>%Ln 個が変更されます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln open so already</source>
        <translation>
            <numerusform>%Ln 個はすでにそのように開きます</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cannot be changed</source>
        <translation>
            <numerusform>%Ln 個は変更できません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln 個を変更しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln as they were</source>
        <translation>
            <numerusform>%Ln 個は元のまま</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln 個が失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not done</source>
        <translation>
            <numerusform>%Ln 個が未処理</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln second(s) left</source>
        <translation>
            <numerusform>残り約 %Ln 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %Ln minute(s) left</source>
        <translation>
            <numerusform>残り約 %Ln 分</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A number of documents, and why they cannot be changed: &quot;4 signed&quot;</extracomment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Undoing… %1</source>
        <translation>元に戻しています… %1</translation>
    </message>
    <message>
        <source>Show Res&amp;ults</source>
        <translation>結果を表示(&amp;N)</translation>
    </message>
    <message>
        <source>Opens the folder that the run has written into</source>
        <translation>実行の書き込み先フォルダーを開きます</translation>
    </message>
    <message>
        <source>No document is shown that the change could be for.</source>
        <translation>変更の対象となる文書が表示されていません。</translation>
    </message>
    <message>
        <source>What would change is not known. Read the documents again (F5) to find out.</source>
        <translation>何が変わるか分かっていません。文書を読み直すと (F5) 分かります。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln 個を書き出し</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln copied as they were</source>
        <translation>
            <numerusform>%Ln 個はそのままコピー</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::RunHistory</name>
    <message>
        <source>The run could not be written down in %1: %2</source>
        <translation>実行を %1 に記録できませんでした: %2</translation>
    </message>
    <message>
        <source>A run that was broken off</source>
        <translation>途中で終わった実行</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln 個を変更</numerusform>
        </translation>
    </message>
    <message>
        <source>undone</source>
        <translation>元に戻しました</translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>元に戻せます</translation>
    </message>
    <message>
        <source>documents are as they were</source>
        <translation>文書は元のままです</translation>
    </message>
    <message>
        <source>When</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>書き込み先</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>個数</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>%Ln 個を書き出し</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing to undo</source>
        <translation>取り消すものなし</translation>
    </message>
    <message>
        <source>Broken off: %1</source>
        <translation>途中で終わった実行: %1</translation>
    </message>
</context>
<context>
    <name>host::desktop::RunMachine</name>
    <message>
        <source>Close the settings first.</source>
        <translation>先に設定を閉じてください。</translation>
    </message>
    <message>
        <source>Wait until the run has ended.</source>
        <translation>実行が終わるまで待ってください。</translation>
    </message>
    <message>
        <source>Add documents first.</source>
        <translation>先に文書を追加してください。</translation>
    </message>
    <message>
        <source>Wait until all documents are read.</source>
        <translation>すべての文書を読み込むまで待ってください。</translation>
    </message>
    <message>
        <source>Wait until it is known what would change.</source>
        <translation>変更内容がわかるまで待ってください。</translation>
    </message>
    <message>
        <source>Wait until the run is undone.</source>
        <translation>実行を元に戻し終えるまで待ってください。</translation>
    </message>
    <message>
        <source>Say first what is to change.</source>
        <translation>先に何を変更するかを指定してください。</translation>
    </message>
    <message>
        <source>Nothing is under way.</source>
        <translation>進行中のものはありません。</translation>
    </message>
    <message>
        <source>This run is done. Change something to start another one.</source>
        <translation>この実行は終わりました。別の実行を始めるには、何かを変更してください。</translation>
    </message>
</context>
<context>
    <name>host::desktop::Session</name>
    <message>
        <source>A list of an earlier session cannot be read, and is left as it is: %1</source>
        <translation>以前のセッションの一覧を読めないため、そのまま残します: %1</translation>
    </message>
    <message>
        <source>List and change will not be there the next time: %1: %2</source>
        <translation>一覧と変更は次回まで保存されません: %1: %2</translation>
    </message>
</context>
<context>
    <name>host::desktop::SettingRow</name>
    <message>
        <source>%1, number</source>
        <translation>%1、数値</translation>
    </message>
    <message>
        <source>%1, text</source>
        <translation>%1、テキスト</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>維持</translation>
    </message>
    <message>
        <source>First</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>Page…</source>
        <translation>ページ…</translation>
    </message>
    <message>
        <source>Number…</source>
        <translation>数…</translation>
    </message>
    <message>
        <source>From the file name</source>
        <translation>ファイル名から</translation>
    </message>
    <message>
        <source>From the file name, where missing</source>
        <translation>ファイル名から(ない場合のみ)</translation>
    </message>
    <message>
        <source>This text:</source>
        <translation>次のテキスト:</translation>
    </message>
    <message>
        <source>Remove the setting</source>
        <translation>設定を削除</translation>
    </message>
</context>
<context>
    <name>host::desktop::StartQuestion</name>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) will be changed in place.</source>
        <translation>
            <numerusform>%Ln 個の文書を直接変更します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written to %1.</source>
        <translation>
            <numerusform>%Ln 個の結果を %1 に書き込みます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln result(s) will be written beside the documents, with “-%1” added to their names.</source>
        <translation>
            <numerusform>%Ln 個の結果を、名前に「-%1」を付けて文書の隣に書き込みます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) there will be replaced.</source>
        <translation>
            <numerusform>そこにある %Ln 個のファイルを置き換えます。</numerusform>
        </translation>
    </message>
    <message>
        <source>What the run changes can be undone.</source>
        <translation>実行による変更は元に戻せます。</translation>
    </message>
    <message>
        <source>The documents themselves stay as they are.</source>
        <translation>元の文書はそのままです。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) cannot be changed and stay as they are.</source>
        <translation>
            <numerusform>%Ln 個の文書は変更できないため、元のままです。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::desktop::ToolBar</name>
    <message>
        <source>Re&amp;move</source>
        <translation>除外(&amp;M)</translation>
    </message>
    <message>
        <source>S&amp;tart…</source>
        <translation>開始(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
</context>
<context>
    <name>host::desktop::Workbench</name>
    <message>
        <source>What you added waits until this is done.</source>
        <translation>追加されたものは、これが終わるまで待ちます。</translation>
    </message>
    <message>
        <source>Reading broke off.</source>
        <translation>読み込みが途中で終わりました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were in the list already.</source>
        <translation>
            <numerusform>%Ln 個の文書はすでに一覧にありました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Finding out what would change broke off.</source>
        <translation>変更内容の確認が途中で終わりました。</translation>
    </message>
    <message>
        <source>Nothing is begun: the folder for reports cannot be made: %1</source>
        <translation>何も開始していません。レポートのフォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>The run broke off.</source>
        <translation>実行が途中で終わりました。</translation>
    </message>
    <message>
        <source>Undoing broke off.</source>
        <translation>元に戻す処理が途中で終わりました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>%Ln 個の文書が実行前の状態に戻りました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln document(s) were left alone, since they are no longer as the run left them.</source>
        <translation>
            <numerusform>%Ln 個の文書は、実行直後の状態ではないため、そのまま残しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>No document of the list wants a password.</source>
        <translation>パスワードを必要とする文書はリストにありません。</translation>
    </message>
    <message numerus="yes">
        <source>Undoing was stopped: %Ln document(s) are as they were before the run.</source>
        <translation>
            <numerusform>元に戻す処理を停止しました: %Ln 個の文書が実行前の状態に戻りました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading was stopped. What was not found until then is not in the list.</source>
        <translation>読み込みを中止しました。それまでに見つからなかったものは一覧にありません。</translation>
    </message>
    <message>
        <source>No PDF document was found there.</source>
        <translation>そこに PDF 文書は見つかりませんでした。</translation>
    </message>
</context>
</TS>
