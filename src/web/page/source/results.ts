// What came out of a run: tabs with words, charts, tables and files.
import { zipSync } from 'fflate';
import { chartFigure } from './charts';
import { button, byId, h } from './dom';
import type { Engine } from './engine';
import { Refusal } from './engine';
import { sizeText } from './form';
import type { Cell, Files, Fit, OffspringDetail, Summary, TableData } from './protocol';
import { DataTable, type Filter } from './table';

const kSigns: Record<Fit, string> = {
  unsaid: '*',
  exact: '✓',
  unmeasured: '#',
  tolerated: '≈',
  excluded: '✗',
};
const kSignLegend =
  '✓ exact   ≈ within the tolerance (an error)   ✗ above it (UC)   # one allele in neither parent   * not typed';

const kMostToCheck = 20;
const kToCheck = 'to check'; // the filter

/** The forms of other programs that a finished run can be written in. */
const kForms = {
  html: 'Report to be read (HTML)',
  tsv: 'Tables for R and Python',
  pedigree: 'Pedigree files',
};

export interface ShownRun {
  engine: Engine;
  summary: Summary;
  project: string;
  isAllocation: boolean;
  inputs: Files;
}

export function download(name: string, bytes: Uint8Array | string): void {
  const address = URL.createObjectURL(new Blob([bytes as BlobPart]));
  const link = h('a', { href: address, download: name });
  link.click();
  setTimeout(() => URL.revokeObjectURL(address), 60000);
}

export class Results {
  /** True until what was made has been downloaded. */
  isUnsaved = false;
  private tabs: { name: string; tab: HTMLButtonElement; panel: HTMLElement }[] = [];
  private readonly notes = h('ul', { hidden: true });
  private offspringTable: DataTable | undefined;

  constructor(
    readonly run: ShownRun,
    private readonly onTrial: () => void,
  ) {
    this.isUnsaved = true;
    this.addTab('Summary', async (panel) => panel.append(...this.summaryParts()));
    for (const name of run.summary.tables) {
      const title = name.charAt(0).toUpperCase() + name.slice(1);
      this.addTab(title, async (panel) => {
        const data = await run.engine.ask('table', { name });
        panel.append(name === 'offspring' ? this.offspring(data) : this.plainTable(title, data));
      });
    }
    this.addTab('Files', (panel) => this.showFiles(panel));
    this.open('Summary');
  }

  /** Takes the place of other results in the page. */
  show(): void {
    byId('results-title').textContent = this.run.summary.title;
    byId('tabs').replaceChildren(...this.tabs.map(({ tab }) => tab));
    byId('panels').replaceChildren(...this.tabs.map(({ panel }) => panel));
  }

  /** Adds a sentence to those below the headline. */
  addNote(textContent: string): void {
    this.notes.append(h('li', { textContent }));
    this.notes.hidden = false;
  }

  private addTab(name: string, fill: (panel: HTMLElement) => Promise<void>): void {
    const id = name.toLowerCase();
    const tab = button(name, () => this.open(name), `tab-${id}`);
    tab.setAttribute('role', 'tab');
    tab.setAttribute('aria-controls', `panel-${id}`);
    tab.onkeydown = (event): void => this.step(name, event);
    const panel = h('div', {
      id: `panel-${id}`,
      hidden: true,
      tabIndex: 0,
      attributes: { role: 'tabpanel', 'aria-labelledby': `tab-${id}` },
    });
    let isFilled = false;
    panel.addEventListener('fill', () => {
      if (!isFilled) {
        isFilled = true;
        fill(panel).then(
          () => (panel.dataset['ready'] = 'yes'),
          (error: unknown) => panel.append(refusalBox(error)),
        );
      }
    });
    this.tabs.push({ name, tab, panel });
  }

  private open(name: string): void {
    for (const each of this.tabs) {
      const isOpen = each.name === name;
      each.tab.setAttribute('aria-selected', String(isOpen));
      each.tab.tabIndex = isOpen ? 0 : -1;
      each.panel.hidden = !isOpen;
      if (isOpen) {
        each.panel.dispatchEvent(new Event('fill'));
      }
    }
  }

  private step(name: string, event: KeyboardEvent): void {
    const way = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
    if (way) {
      const place = this.tabs.findIndex((each) => each.name === name);
      const next = this.tabs.at((place + way) % this.tabs.length);
      this.open(next?.name ?? name);
      next?.tab.focus();
    }
  }

  private summaryParts(): HTMLElement[] {
    const { summary } = this.run;
    const list = (texts: string[]): HTMLElement =>
      h('ul', {}, ...texts.map((textContent) => h('li', { textContent })));
    const parts: HTMLElement[] = [h('p', { className: 'headline', textContent: summary.headline })];
    summary.notes.forEach((note) => this.addNote(note));
    parts.push(this.notes);
    if (this.run.isAllocation && summary.certainty) {
      const trial = button('Simulate with the same settings', this.onTrial, 'trial');
      parts.push(h('p', {}, trial));
    }
    if (summary.check.length > 0) {
      parts.push(h('h3', { textContent: 'To be looked at' }), this.checkList());
    }
    if (summary.warnings.length > 0) {
      parts.push(h('h3', { textContent: 'Warnings' }), list(summary.warnings));
    }
    parts.push(h('div', { className: 'charts' }, ...summary.charts.map(chartFigure)));
    parts.push(preformatted('As the command line tells it', summary.text));
    parts.push(preformatted('The command that repeats this run', summary.command));
    return parts;
  }

  private checkList(): HTMLElement {
    const { check } = this.run.summary;
    const items = check.slice(0, kMostToCheck).map(({ place, name, why }) => {
      const link = button(name, () => void this.showOffspring(place));
      link.className = 'link';
      return h('li', {}, link, `: ${why}`);
    });
    if (check.length > kMostToCheck) {
      const more = `... and ${check.length - kMostToCheck} more`;
      const all = button(more, () => void this.showToCheck());
      all.className = 'link';
      items.push(h('li', {}, all));
    }
    return h('ul', { id: 'to-check' }, ...items);
  }

  private async showOffspring(place: number): Promise<void> {
    const panel = await this.openedOffspring();
    this.offspringTable?.show(place);
    panel?.querySelector<HTMLElement>('.detail')?.scrollIntoView({ block: 'nearest' });
  }

  private async showToCheck(): Promise<void> {
    const panel = await this.openedOffspring();
    this.offspringTable?.choose(kToCheck);
    panel?.scrollIntoView({ block: 'nearest' });
  }

  private async openedOffspring(): Promise<HTMLElement | undefined> {
    this.open('Offspring');
    const panel = this.tabs.find((each) => each.name === 'Offspring')?.panel;
    while (panel && !panel.dataset['ready'] && !panel.querySelector('.problem')) {
      await new Promise((resolve) => setTimeout(resolve, 20));
    }
    return panel;
  }

  private plainTable(label: string, data: TableData): HTMLElement {
    return new DataTable(data, { label }).element;
  }

  private offspring(data: TableData): HTMLElement {
    const place = (key: string): number => data.columns.findIndex((each) => each.key === key);
    const detail = h('section', {
      className: 'detail',
      ariaLabel: 'One offspring, locus by locus',
      ariaLive: 'polite',
    });
    detail.append(
      h('p', { className: 'hint', textContent: 'Choose an offspring to see it locus by locus.' }),
    );
    this.offspringTable = new DataTable(data, {
      label: 'Offspring and their parents',
      filters: filtersOf(data),
      chosenBy: place('offspring'),
      onChoose: (row) => void this.showDetail(detail, row, 0),
    });
    return h('div', {}, this.offspringTable.element, detail);
  }

  private async showDetail(detail: HTMLElement, place: number, pair: number): Promise<void> {
    const found = await this.run.engine.ask('offspring', { place, pair });
    const pairs = h('select', { ariaLabel: 'Pair beside it' });
    found.pairs.forEach(([first, second], k) =>
      pairs.append(h('option', { value: String(k), textContent: `${first} and ${second}` })),
    );
    pairs.selectedIndex = pair;
    pairs.onchange = (): void => void this.showDetail(detail, place, pairs.selectedIndex);
    const parts: HTMLElement[] = [h('h3', { textContent: found.offspring })];
    if (found.pairs.length > 1) {
      parts.push(h('p', {}, 'Equally likely pairs, of which the first decided: ', pairs));
    } else if (found.pairs.length === 0) {
      const text = 'No pair of collected parents can have produced it under the error model.';
      parts.push(h('p', { textContent: text }));
    }
    parts.push(detailTable(found), h('p', { className: 'hint', textContent: kSignLegend }));
    detail.replaceChildren(...parts);
  }

  private async showFiles(panel: HTMLElement): Promise<void> {
    const { engine, project, isAllocation } = this.run;
    const files = await engine.filesIn(project);
    const forms = Object.entries(kForms).filter(([form]) => isAllocation || form === 'tsv');
    const told = h('div', { attributes: { role: 'status' } });
    const buttons = forms.map(([form, text]) =>
      button(text, () => void this.export(form, panel, told), `export-${form}`),
    );
    const list = [...files].map(([path, bytes]) => {
      const name = path.slice(project.length + 1);
      const link = button(name, () => download(name, bytes));
      link.className = 'link';
      return h(
        'li',
        {},
        link,
        h('span', { className: 'hint', textContent: ` ${sizeText(bytes.length)}` }),
      );
    });
    panel.replaceChildren(
      h(
        'p',
        {},
        button('Download all as one zip', () => this.downloadAll(files), 'zip'),
      ),
      h('ul', { id: 'result-files' }, ...list),
      h('h3', { textContent: 'In the forms of other programs' }),
      h('div', { className: 'row' }, ...buttons),
      told,
    );
  }

  /** Inputs and results together, so that the run can be repeated from the unpacked folder. */
  private downloadAll(results: Files): void {
    const all = Object.fromEntries([...this.run.inputs, ...results]);
    download(`kaldo-${this.run.project}.zip`, zipSync(all));
    this.isUnsaved = false;
  }

  private async export(form: string, panel: HTMLElement, told: HTMLElement): Promise<void> {
    try {
      const { files } = await this.run.engine.ask('export', { forms: form });
      await this.showFiles(panel);
      const made = await this.run.engine.filesIn(this.run.project);
      const name = files[0] ?? '';
      const bytes = made.get(`${this.run.project}/${name}`);
      if (bytes) {
        download(name, bytes);
      }
    } catch (error) {
      told.replaceChildren(refusalBox(error));
    }
  }
}

function filtersOf(data: TableData): Filter[] {
  const filters: Filter[] = [];
  const column = (key: string): number => data.columns.findIndex((each) => each.key === key);
  const check = column('check');
  if (check >= 0) {
    filters.push({ name: kToCheck, accepts: (row) => row[check] !== null });
  }
  for (const key of ['certainty', 'class']) {
    const place = column(key);
    const words = new Set<Cell>(place < 0 ? [] : data.rows.map((row) => row[place] ?? null));
    for (const word of words) {
      if (word !== null) {
        filters.push({ name: String(word), accepts: (row) => row[place] === word });
      }
    }
  }
  const pairs = column('pairs');
  filters.push({ name: 'no pair', accepts: (row) => row[pairs] === 0 });
  filters.push({
    name: 'several pairs',
    accepts: (row) => row[pairs] === '5+' || Number(row[pairs]) > 1,
  });
  return filters;
}

function detailTable(found: OffspringDetail): HTMLElement {
  const names = found.pairs[found.pair] ?? [];
  const heads = ['Locus', 'Unit (bp)', found.offspring];
  names.forEach((name) => heads.push(name, 'Offset (units)'));
  const head = h('tr', {}, ...heads.map((text) => h('th', { scope: 'col', textContent: text })));
  const rows = found.loci.map((locus) => {
    const row = h(
      'tr',
      {},
      h('th', { scope: 'row', textContent: locus.locus }),
      h('td', { className: 'number', textContent: String(locus.unit) }),
      h('td', { textContent: locus.offspring }),
    );
    for (const parent of locus.parents) {
      const offset = parent.fit === 'unsaid' ? '' : ` ${parent.offset}`;
      row.append(
        h('td', { textContent: parent.genotype }),
        h('td', { className: `fit ${parent.fit}`, textContent: kSigns[parent.fit] + offset }),
      );
    }
    return row;
  });
  const table = h('table', {}, h('thead', {}, head), h('tbody', {}, ...rows));
  return h(
    'div',
    {
      className: 'wide',
      tabIndex: 0,
      attributes: { role: 'region', 'aria-label': `${found.offspring} locus by locus` },
    },
    table,
  );
}

function preformatted(title: string, text: string): HTMLElement {
  return h(
    'details',
    {},
    h('summary', { textContent: title }),
    h('pre', { textContent: text, tabIndex: 0 }),
  );
}

/** What was wrong, as the command line tells it. */
export function refusalBox(error: unknown): HTMLElement {
  const lines = error instanceof Refusal ? error.lines : [String(error)];
  return h(
    'div',
    { className: 'problem', attributes: { role: 'alert' } },
    ...lines.map((textContent, k) => h('p', { className: k === 0 ? 'first' : '', textContent })),
  );
}
