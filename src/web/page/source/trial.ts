// A simulation like an allocation: what it finds belongs to that allocation, too.
import type { Kind, Typed } from './protocol';
import type { Results } from './results';

/** What may be chosen anew without simulating something else. */
const kFree = ['project', 'iterations', 'offspring_per_iteration', 'seed', 'keep', 'threads'];

export class Trial {
  constructor(
    private readonly allocation: Results,
    private readonly settings: Typed,
  ) {}

  /** Tells the allocation what a run has found, if it was this simulation. */
  tell(kind: Kind, settings: Typed, sentence: string | undefined): void {
    if (sentence && kind === 'simulation' && essence(settings) === essence(this.settings)) {
      this.allocation.addNote(sentence);
    }
  }
}

function essence(settings: Typed): string {
  const kept = Object.entries(settings).filter(([key]) => !kFree.includes(key));
  return JSON.stringify(kept.sort(([a], [b]) => a.localeCompare(b)));
}
