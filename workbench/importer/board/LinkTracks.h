#pragma once

struct TBoardDraft;

/**
 * Makes wires of the tracks that a draft has gathered, and links their ends: to the via, pad or net tie whose copper
 * they end on, else to each other. Two ends are linked directly if one is the last and the other the first end of its
 * wire and nothing else ends there; where wires meet otherwise they get a junction.
 */
void LinkTracks(TBoardDraft& draft);
