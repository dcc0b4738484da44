// The made-up data sets that come with the program, and what is first tried with them.
import lakeLoci from '../../../../examples/non-sexed/loci.txt';
import lakeOffspring from '../../../../examples/non-sexed/offspring.txt';
import lakeParents from '../../../../examples/non-sexed/parents.txt';
import pondFemales from '../../../../examples/sexed/females.txt';
import pondLoci from '../../../../examples/sexed/loci.txt';
import pondMales from '../../../../examples/sexed/males.txt';
import pondOffspring from '../../../../examples/sexed/offspring.txt';
import pondSampleFemales from '../../../../examples/sexed/sample-females.txt';
import pondSampleMales from '../../../../examples/sexed/sample-males.txt';
import type { Kind, Typed } from './protocol';

export interface Example {
  id: string;
  name: string;
  what: string;
  kind: Kind;
  sexed: boolean;
  draws: boolean;
  files: Record<string, string>;
  typed: Typed;
}

const lake = {
  'loci.txt': lakeLoci,
  'parents.txt': lakeParents,
  'offspring.txt': lakeOffspring,
};

export const examples: Example[] = [
  {
    id: 'lake',
    name: 'A lake',
    what: '50 young fish, 36 adults of unknown sex, not all of their parents among them',
    kind: 'allocation',
    sexed: false,
    draws: false,
    files: lake,
    typed: { loci: 'loci.txt', parents: 'parents.txt', offspring: 'offspring.txt' },
  },
  {
    id: 'ponds',
    name: 'Ponds',
    what: 'males and females are known, and divided into groups',
    kind: 'allocation',
    sexed: true,
    draws: false,
    files: {
      'loci.txt': pondLoci,
      'males.txt': pondMales,
      'females.txt': pondFemales,
      'offspring.txt': pondOffspring,
    },
    typed: {
      loci: 'loci.txt',
      males: 'males.txt',
      females: 'females.txt',
      offspring: 'offspring.txt',
    },
  },
  {
    id: 'lake-simulation',
    name: 'The lake, simulated',
    what: 'how far allocations to its 36 adults can be trusted when ten more were not netted',
    kind: 'simulation',
    sexed: false,
    draws: false,
    files: lake,
    typed: {
      loci: 'loci.txt',
      collected: 'parents.txt',
      uncollected_sample: 'parents.txt',
      uncollected: '10',
      iterations: '100',
      offspring_per_iteration: '100',
      allocate_with: 'run',
      seed: '1',
    },
  },
  {
    id: 'ponds-simulation',
    name: 'Ponds, before the field work',
    what: 'parents are drawn from an earlier catch of each sex',
    kind: 'simulation',
    sexed: true,
    draws: true,
    files: {
      'loci.txt': pondLoci,
      'sample-males.txt': pondSampleMales,
      'sample-females.txt': pondSampleFemales,
    },
    typed: {
      loci: 'loci.txt',
      ...ofSex('males'),
      ...ofSex('females'),
      iterations: '100',
      offspring_per_iteration: '100',
      seed: '1',
    },
  },
];

function ofSex(sex: string): Typed {
  const sample = `sample-${sex}.txt`;
  return {
    [`${sex}_pseudo_collected_sample`]: sample,
    [`${sex}_pseudo_collected`]: '16',
    [`${sex}_uncollected_sample`]: sample,
    [`${sex}_uncollected`]: '4',
    [`${sex}_estimated_collected`]: '16',
    [`${sex}_estimated_uncollected`]: '4',
  };
}
