#pragma once

struct TBoardDraft;

/**
 * Creates wires from the tracks that a draft has collected, and links their ends: to the via, pad or net tie whose
 * copper they end on, else to each other. Two ends are linked directly if one is the last and the other the first end
 * of its wire and no other wire ends there; otherwise wires that meet get a junction.
 */
void LinkTracks(TBoardDraft& draft);
