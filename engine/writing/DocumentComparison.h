#pragma once

namespace engine {

class Document;

/// Throws EngineError with RewritingLoses unless `written` has the pages of `document`, everything that its
/// trailer leads to, and as many objects. What describes how a file is stored may differ: numbers of objects,
/// cross-reference, identifiers, compression. Both documents are read whole.
void requireSameContent(Document& document, Document& written);

} // namespace engine
