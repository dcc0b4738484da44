// A table of any length: only the rows in sight are in the page. It sorts, searches and filters.
import { button, h, shortNumber } from './dom';
import type { Cell, Column, TableData } from './protocol';

export interface Filter {
  name: string;
  accepts(row: Cell[]): boolean;
}

export interface TableOptions {
  label: string;
  filters?: Filter[];
  /** Called with the place of a row in the data when its name is chosen. */
  onChoose?: (place: number) => void;
  /** The column whose cells are buttons for that. */
  chosenBy?: number;
}

const kRowHeight = 32; // pixels, as in the style sheet
const kSpare = 8; // rows above and below those in sight

export function cellText(cell: Cell): string {
  if (cell === null) {
    return '';
  }
  return typeof cell === 'number' ? shortNumber(cell) : String(cell);
}

function compare(a: Cell, b: Cell): number {
  if (a === null || b === null) {
    return a === b ? 0 : a === null ? 1 : -1;
  }
  if (typeof a === 'number' && typeof b === 'number') {
    return a - b;
  }
  return String(a).localeCompare(String(b), 'en', { numeric: true });
}

const holds = (cell: Cell, sought: string): boolean =>
  typeof cell === 'string' && cell.toLowerCase().includes(sought);

export class DataTable {
  readonly element: HTMLElement;
  private readonly shownColumns = new Set<number>();
  private readonly searchField = h('input', { type: 'search', placeholder: 'part of a name' });
  private readonly filterField = h('select');
  private readonly count = h('span', { className: 'count', attributes: { role: 'status' } });
  private readonly head = h('thead');
  private readonly body = h('tbody');
  private readonly scroller = h('div', {
    className: 'scroller',
    tabIndex: 0,
    attributes: { role: 'region' },
  });
  private readonly table = h('table', {}, this.head, this.body);
  private order: number[] = [];
  private sortedBy: { column: number; falls: boolean } | null = null;
  private chosen = -1;
  private drawn = '';

  constructor(
    private readonly data: TableData,
    private readonly options: TableOptions,
  ) {
    const hasFirst = data.columns.some((column) => column.first);
    data.columns.forEach((column, k) => {
      if (!hasFirst || column.first) {
        this.shownColumns.add(k);
      }
    });
    this.scroller.setAttribute('aria-label', options.label);
    this.scroller.append(this.table);
    this.scroller.onscroll = (): void => this.draw();
    this.searchField.setAttribute('aria-label', `Search in ${options.label}`);
    this.searchField.oninput = (): void => this.narrow();
    this.element = h('div', { className: 'data-table' }, this.tools(hasFirst), this.scroller);
    new ResizeObserver(() => this.draw()).observe(this.scroller);
    this.drawHead();
    this.narrow();
  }

  /** Shows the rows of one filter; without a name all. */
  choose(name = ''): void {
    this.searchField.value = '';
    const filters = this.options.filters ?? [];
    this.filterField.selectedIndex = filters.findIndex((each) => each.name === name) + 1;
    this.narrow();
  }

  /** Brings a row into sight and marks it. */
  show(place: number): void {
    this.choose();
    this.mark(place);
    this.scroller.scrollTop = Math.max(0, this.order.indexOf(place) - 2) * kRowHeight;
    this.draw();
  }

  private mark(place: number): void {
    this.chosen = place;
    this.drawn = '';
    this.draw();
    this.options.onChoose?.(place);
  }

  private tools(hasMore: boolean): HTMLElement {
    const tools = h('div', { className: 'tools' }, this.searchField);
    const { filters } = this.options;
    if (filters) {
      this.filterField.append(h('option', { textContent: 'all' }));
      filters.forEach(({ name }) => this.filterField.append(h('option', { textContent: name })));
      this.filterField.onchange = (): void => this.narrow();
      tools.append(h('label', {}, 'Show ', this.filterField));
    }
    if (hasMore) {
      tools.append(this.moreColumns());
    }
    tools.append(this.count);
    return tools;
  }

  private moreColumns(): HTMLElement {
    const input = h('input', { type: 'checkbox' });
    input.onchange = (): void => {
      this.data.columns.forEach((column, k) => {
        if (!column.first) {
          this.shownColumns[input.checked ? 'add' : 'delete'](k);
        }
      });
      this.drawHead();
      this.narrow(); // what is sought is sought in the columns shown
    };
    return h('label', { className: 'box' }, input, ' all columns');
  }

  private drawHead(): void {
    const row = h('tr');
    for (const [k, column] of this.data.columns.entries()) {
      if (this.shownColumns.has(k)) {
        row.append(this.headCell(column, k));
      }
    }
    this.head.replaceChildren(row);
  }

  private headCell(column: Column, k: number): HTMLElement {
    const cell = h('th', { scope: 'col', className: column.numeric ? 'number' : '' });
    const name = button(column.head, () => this.sortBy(k));
    name.title = column.tip ?? '';
    cell.append(name);
    if (this.sortedBy?.column === k) {
      cell.setAttribute('aria-sort', this.sortedBy.falls ? 'descending' : 'ascending');
    }
    return cell;
  }

  private sortBy(column: number): void {
    const falls = this.sortedBy?.column === column && !this.sortedBy.falls;
    this.sortedBy = { column, falls };
    const focused = [...this.shownColumns].sort((a, b) => a - b).indexOf(column);
    this.drawHead();
    this.narrow();
    this.head.querySelectorAll('button')[focused]?.focus();
  }

  private narrow(): void {
    const { rows } = this.data;
    const sought = this.searchField.value.trim().toLowerCase();
    const filter = this.options.filters?.[this.filterField.selectedIndex - 1];
    this.order = [];
    rows.forEach((row, place) => {
      const found =
        !sought || row.some((cell, k) => this.shownColumns.has(k) && holds(cell, sought));
      if (found && (!filter || filter.accepts(row))) {
        this.order.push(place);
      }
    });
    if (this.sortedBy) {
      const { column, falls } = this.sortedBy;
      this.order.sort((a, b) => {
        const way = compare(rows[a]?.[column] ?? null, rows[b]?.[column] ?? null);
        return (falls ? -way : way) || a - b;
      });
    }
    this.count.textContent =
      this.order.length === rows.length
        ? `${rows.length} rows`
        : `${this.order.length} of ${rows.length} rows`;
    this.scroller.scrollTop = 0;
    this.redraw();
  }

  private redraw(): void {
    this.drawn = '';
    this.draw();
  }

  private draw(): void {
    const height = this.scroller.clientHeight || 600;
    const from = Math.max(0, Math.floor(this.scroller.scrollTop / kRowHeight) - kSpare);
    const to = Math.min(this.order.length, from + Math.ceil(height / kRowHeight) + 2 * kSpare);
    const state = `${from} ${to}`;
    if (state === this.drawn) {
      return;
    }
    this.drawn = state;
    const focused = document.activeElement?.closest('tr')?.dataset['place'];
    this.table.setAttribute('aria-rowcount', String(this.order.length + 1));
    this.body.replaceChildren(this.space(from));
    for (let k = from; k < to; ++k) {
      this.body.append(this.row(this.order[k] ?? 0, k));
    }
    this.body.append(this.space(this.order.length - to));
    if (focused) {
      this.body.querySelector<HTMLElement>(`tr[data-place="${focused}"] button`)?.focus();
    }
  }

  /** Stands for rows that are not in sight. */
  private space(rows: number): HTMLElement {
    const space = h('tr', { className: 'space', attributes: { 'aria-hidden': 'true' } });
    space.style.height = `${rows * kRowHeight}px`;
    return space;
  }

  private row(place: number, k: number): HTMLElement {
    const row = h('tr', { attributes: { 'aria-rowindex': String(k + 2) } });
    row.dataset['place'] = String(place);
    row.classList.toggle('chosen', place === this.chosen);
    const cells = this.data.rows[place] ?? [];
    for (const [j, column] of this.data.columns.entries()) {
      if (!this.shownColumns.has(j)) {
        continue;
      }
      const text = cellText(cells[j] ?? null);
      const cell = h('td', { className: column.numeric ? 'number' : '' });
      if (j === this.options.chosenBy) {
        cell.append(button(text, () => this.mark(place)));
      } else {
        cell.textContent = text;
      }
      if (column.key === 'certainty') {
        cell.className = `certainty ${text.replace(' ', '-')}`;
      }
      row.append(cell);
    }
    return row;
  }
}
