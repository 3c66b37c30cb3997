// The same edit in mutool: page mode, layout, open at page 2 fit page, seven preferences. Arguments: how to save
// ("incremental" or ""), an output folder, documents.
var options = scriptArgs[0], folder = scriptArgs[1];
for (var i = 2; i < scriptArgs.length; ++i) {
    var doc = new PDFDocument(scriptArgs[i]);
    var root = doc.getTrailer().Root;
    root.PageMode = doc.newName("UseOutlines");
    root.PageLayout = doc.newName("TwoPageRight");
    root.OpenAction = doc.newArray();
    root.OpenAction.push(doc.findPage(1));
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
