"""What a recording disk has recorded, and what can be on the disk when power fails."""

import itertools
import random
import struct

BLOCK = 4096  # what a disk takes out of its cache at once
SECTOR = 512  # what is written whole or not at all
EXHAUSTIVE = 7  # blocks between two flushes of which every subset is tried


class Write:
    """A block, or less, at an offset; the place is that of its record."""

    def __init__(self, offset, data, place):
        self.offset, self.data, self.place = offset, data, place

    def sectors(self):
        for at in range(0, len(self.data), SECTOR):
            yield Write(self.offset + at, self.data[at:at + SECTOR], self.place)


class Epoch:
    """What is written between two flushes, in its order, with the marks that were set meanwhile."""

    def __init__(self, begin):
        self.begin, self.writes, self.marks = begin, [], []


def read(path, heeded):
    """The epochs of a log, of a disk that heeds every so many-th flush."""
    with open(path, "rb") as file:
        log = file.read()
    at, place, flushes = 0, 0, 0
    epochs = [Epoch(0)]
    while at < len(log):
        kind = log[at:at + 1]
        offset, length = struct.unpack_from("<QQ", log, at + 1)
        data = log[at + 17:at + 17 + length]
        at += 17 + length
        place += 1
        if kind == b"F":
            flushes += 1
            if flushes % heeded == 0:
                epochs.append(Epoch(place))
        elif kind == b"M":
            epochs[-1].marks.append((place, data.decode().strip()))
        else:
            end = offset + length
            while offset < end:  # at block boundaries
                size = min(end, offset // BLOCK * BLOCK + BLOCK) - offset
                epochs[-1].writes.append(Write(offset, data[len(data) - (end - offset):][:size], place))
                offset += size
    return epochs


def subsets(writes, most, chance):
    """Subsets of an epoch's writes that can be on the disk, none of them twice: all of them where they are few, else
    every beginning, every beginning but for one block, all but one, and chance. The last value tells whether it is all."""
    count = len(writes)
    if count <= EXHAUSTIVE:
        return [list(each) for n in range(count + 1) for each in itertools.combinations(writes, n)], True
    chosen = {tuple(range(n)) for n in range(count + 1)}
    chosen |= {tuple(k for k in range(count) if k != left) for left in range(count)}
    if len(chosen) > most:
        chosen = set(chance.sample(sorted(chosen), most // 2)) | {(), tuple(range(count))}
    while len(chosen) < most:
        share = chance.random()
        chosen.add(tuple(k for k in range(count) if chance.random() < share))
    return [[writes[k] for k in each] for each in sorted(chosen)], False


def torn(writes, is_torn, most, chance):
    """The writes with some sectors missing of those that can be torn: that of one sector after the other, and chance."""
    whole = [write for write in writes if not is_torn(write)]
    sectors = [sector for write in writes if is_torn(write) for sector in write.sectors()]
    if len(sectors) < 2:
        return []
    chosen = {tuple(range(n)) for n in range(1, len(sectors))}
    chosen |= {tuple(k for k in range(len(sectors)) if k != left) for left in range(len(sectors))}
    if len(chosen) > most:
        chosen = set(chance.sample(sorted(chosen), most))
    for _ in range(most - len(chosen)):
        chosen.add(tuple(k for k in range(len(sectors)) if chance.random() < 0.5))
    return [whole + [sectors[k] for k in each] for each in sorted(chosen)]


class Image:
    """A disk image that was written to up to some epoch, kept as what differs from the base."""

    def __init__(self, base):
        self.base = base
        self.blocks = {}

    def apply(self, write):
        first = write.offset // BLOCK
        block = bytearray(self.blocks.get(first) or self.base_block(first))
        start = write.offset - first * BLOCK
        block[start:start + len(write.data)] = write.data
        self.blocks[first] = bytes(block)

    def base_block(self, number):
        self.base.seek(number * BLOCK)
        return self.base.read(BLOCK).ljust(BLOCK, b"\0")

    def with_writes(self, writes):
        """The blocks of the image with further writes, which does not stay."""
        state = Image(self.base)
        state.blocks = dict(self.blocks)
        for write in writes:
            state.apply(write)
        return state.blocks


def crashes(log, base, is_torn, arguments):
    """For each state that the disk can be in: its blocks that differ from the base, a name, and the marks that were set
    by then. Ends with how many epochs there were, and in how many of them not every subset was tried."""
    chance, most = random.Random(arguments.seed), arguments.most
    image = Image(base)
    marks, sampled = [], 0
    for number, epoch in enumerate(read(log, arguments.heed)):
        chosen, is_all = subsets(epoch.writes, most, chance)
        sampled += 0 if is_all else 1
        chosen += torn(epoch.writes, is_torn, most // 2, chance)
        for each in chosen if epoch.writes or number == 0 else []:
            last = max((write.place for write in each), default=epoch.begin)
            yield image.with_writes(each), f"epoch {number}, {len(each)} of {len(epoch.writes)} writes", \
                marks + [mark for place, mark in epoch.marks if place < last]
        for write in epoch.writes:
            image.apply(write)
        marks += [mark for _, mark in epoch.marks]
    yield None, f"{number + 1} epochs, {sampled} of them sampled", marks
