#pragma once

/// Viewer preferences beyond those of pdflibrary/ViewNumbers.h, as Get- and SetViewerPreferences number them,
/// and what else the two understand.
namespace host::vieweroption {

inline constexpr int Direction = 8;
inline constexpr int PrintScaling = 9;
inline constexpr int Duplex = 10;
inline constexpr int PickTrayByPDFSize = 11;
inline constexpr int NumCopies = 12;

/// Added to an option's number, the getter tells Absent instead of the default.
inline constexpr int AsWritten = 100;
/// The value of an entry that the document does not have; setting it takes the entry away.
inline constexpr int Absent = -1;
/// Of the page mode, which has no getter of its own for it; as 6 is of the page layout.
inline constexpr int NoPageMode = 6;

} // namespace host::vieweroption
