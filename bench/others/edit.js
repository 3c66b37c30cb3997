// The same edit in mutool: page mode, layout, open at a page fit page, seven preferences. Arguments: how to save
// ("incremental" or ""), an output folder, the page's number, documents.
var options = scriptArgs[0], folder = scriptArgs[1], page = +scriptArgs[2];
for (var i = 3; i < scriptArgs.length; ++i) {
    var doc = new PDFDocument(scriptArgs[i]);
    var root = doc.getTrailer().Root;
    root.PageMode = doc.newName("UseOutlines");
    root.PageLayout = doc.newName("TwoPageRight");
    root.OpenAction = doc.newArray();
    root.OpenAction.push(doc.findPage(page - 1));
    root.OpenAction.push(doc.newName("Fit"));
    var prefs = doc.newDictionary();
    prefs.HideToolbar = true;
    prefs.HideMenubar = true;
    prefs.HideWindowUI = true;
    prefs.FitWindow = true;
    prefs.CenterWindow = true;
    prefs.DisplayDocTitle = true;
    prefs.NonFullScreenPageMode = doc.newName("UseOutlines");
    root.ViewerPreferences = prefs;
    var name = scriptArgs[i].substring(scriptArgs[i].lastIndexOf("/"));
    doc.save(folder + name, options);
}
